#pragma once

class QPoint;
class QWidget;

/// Presses the left button on a widget and releases it elsewhere, as a user who drags.
void DragMouse(QWidget& widget, const QPoint& from, const QPoint& to);
