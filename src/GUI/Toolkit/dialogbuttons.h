#pragma once

#include <QLayout>

class QDialog;
class QPushButton;

/// A row of two buttons at the right: the first accepts the dialog and answers to Enter, the
/// second, "Cancel", rejects it. acceptButton is given the first.
QLayout* MakeDialogButtons(QDialog* dialog, const QString& acceptText,
                           QPushButton** acceptButton = nullptr);
