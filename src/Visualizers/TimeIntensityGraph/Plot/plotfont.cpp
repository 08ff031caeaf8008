#include "plotfont.h"

#include <QGuiApplication>

QFont PlotFont()
{
    constexpr int pixels = 10;
    QFont font = QGuiApplication::font();
    font.setPixelSize(pixels);
    return font;
}
