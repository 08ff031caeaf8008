#pragma once

class QPainter;

/// Thin black lines every 10 pixels from the area's left and top up to its right and bottom
/// corner, at that opacity. The painter is left as it was.
void PaintGrid(QPainter& painter, int left, int top, double right, double bottom, double opacity);
