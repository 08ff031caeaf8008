#pragma once

#include <QLayout>

class QDialog;

/// A row of two buttons at the right: the first accepts the dialog and answers to Enter, the
/// second, "Cancel", rejects it.
QLayout* MakeDialogButtons(QDialog* dialog, const QString& acceptText);
