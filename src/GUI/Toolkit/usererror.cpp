#include "usererror.h"

#include <QErrorMessage>

namespace
{

void bringToFront(QErrorMessage* box)
{
    box->raise();
    box->activateWindow();
}

} // namespace

void ShowUserError(QWidget* parent, const QString& title, const QString& text)
{
    auto* box = new QErrorMessage(parent);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setWindowTitle(title);
    box->showMessage(text);
    // A window that is only about to be shown would cover the box.
    if (parent && !parent->window()->isVisible())
        QMetaObject::invokeMethod(
            box, [box] { bringToFront(box); }, Qt::QueuedConnection);
}
