#include "mousedrag.h"

#include <QMouseEvent>
#include <QtTest>

void DragMouse(QWidget& widget, const QPoint& from, const QPoint& to)
{
    QTest::mousePress(&widget, Qt::LeftButton, {}, from);
    // QTest::mouseMove tells no buttons; a drag needs the left one held.
    if (from != to) {
        QMouseEvent move(QEvent::MouseMove, QPointF(to), Qt::NoButton, Qt::LeftButton, {});
        QCoreApplication::sendEvent(&widget, &move);
    }
    QTest::mouseRelease(&widget, Qt::LeftButton, {}, to);
}
