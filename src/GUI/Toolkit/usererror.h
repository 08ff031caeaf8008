#pragma once

class QString;
class QWidget;

/// Shows a user error in a non-modal box that deletes itself when it is closed. It stands in front
/// of the parent's window, also of one that is only about to be shown.
void ShowUserError(QWidget* parent, const QString& title, const QString& text);
