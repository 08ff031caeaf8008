#pragma once

#include <Qt>

class QPoint;
class QWidget;

/// Presses a button on a widget and releases it elsewhere, as a user who drags.
void DragMouse(QWidget& widget, const QPoint& from, const QPoint& to,
               Qt::MouseButton button = Qt::LeftButton);
/// Moves the pointer over a widget, with that button held or none.
void MoveMouse(QWidget& widget, const QPoint& to, Qt::MouseButton held = Qt::NoButton);
