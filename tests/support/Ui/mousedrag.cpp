#include "mousedrag.h"

#include <QMouseEvent>
#include <QtTest>

void DragMouse(QWidget& widget, const QPoint& from, const QPoint& to, Qt::MouseButton button)
{
    QTest::mousePress(&widget, button, {}, from);
    if (from != to)
        MoveMouse(widget, to, button);
    QTest::mouseRelease(&widget, button, {}, to);
}

void MoveMouse(QWidget& widget, const QPoint& to, Qt::MouseButton held)
{
    // QTest::mouseMove tells no buttons; a drag needs its own held.
    QMouseEvent move(QEvent::MouseMove, QPointF(to), Qt::NoButton, held, {});
    QCoreApplication::sendEvent(&widget, &move);
}
