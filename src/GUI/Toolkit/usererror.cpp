#include "usererror.h"

#include <QErrorMessage>

void ShowUserError(QWidget* parent, const QString& title, const QString& text)
{
    auto* box = new QErrorMessage(parent);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setWindowTitle(title);
    box->showMessage(text);
}
