#pragma once

#include <QErrorMessage>

/// Shows a user error in a non-modal box that deletes itself when it is closed.
inline void ShowUserError(QWidget* parent, const QString& title, const QString& text)
{
    auto* box = new QErrorMessage(parent);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setWindowTitle(title);
    box->showMessage(text);
}
