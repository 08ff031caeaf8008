#pragma once

#include <QString>

class QWidget;

/// Shows a user error in a non-modal box that deletes itself when it is closed.
void ShowUserError(QWidget* parent, const QString& title, const QString& text);
