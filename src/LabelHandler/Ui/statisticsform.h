#pragma once

#include <QLineEdit>

class QDialog;
class QFormLayout;
class QLayout;
class QPushButton;

/// Adds a labelled field whose text can be copied, but not changed.
QLineEdit* AddReadOnlyField(QFormLayout* form, const QString& label, const QString& toolTip);

/// A row of a button at the left, which does not answer to Enter, and "Close" at the right, which
/// does.
QLayout* MakeCloseRow(QDialog* dialog, QPushButton* button);
