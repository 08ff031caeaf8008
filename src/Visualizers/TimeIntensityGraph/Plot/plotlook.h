#pragma once

#include <QFont>
#include <QGuiApplication>

class QPainter;

/// The opacity of selections and other marks over plots.
constexpr double MarkOpacity = 0.4;

/// The font of axes and marks in plots: small enough for the margins, whatever font the desktop
/// has.
inline QFont PlotFont()
{
    constexpr int pixels = 10;
    QFont font = QGuiApplication::font();
    font.setPixelSize(pixels);
    return font;
}

/// Thin black lines every 10 pixels from the area's left and top up to its right and bottom
/// corner, at that opacity. The painter is left as it was.
void PaintGrid(QPainter& painter, int left, int top, double right, double bottom, double opacity);
