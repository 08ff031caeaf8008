#pragma once

#include <QFont>
#include <QGuiApplication>

/// The font of axes and marks in plots: small enough for the margins, whatever font the desktop
/// has.
inline QFont PlotFont()
{
    constexpr int pixels = 10;
    QFont font = QGuiApplication::font();
    font.setPixelSize(pixels);
    return font;
}
