#pragma once

#include <QPen>
#include <QRectF>
#include <QtGlobal>

class QPainter;

/// Truncates toward zero. What lies beyond an int stops at its ends; not-a-number becomes 0.
int TruncateToInt(double value);

/// A coordinate that painters can take: finite, and not so far off that they lose their way.
double SafeCoordinate(double value);

/// The part of the plane, in the painter's own coordinates, that it can still paint on: its clip
/// and its device. Unlimited where the device has no size.
QRectF VisibleRect(const QPainter& painter);

/// Device pixels per horizontal unit of the painter's coordinates.
double HorizontalScale(const QPainter& painter);

/// The pen of a line through many points: not wider than a device pixel, since wider ones are a
/// hundred times slower to paint.
QPen FastPen(const QPainter& painter, const QColor& color, double width);
