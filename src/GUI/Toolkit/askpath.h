#pragma once

#include <QString>

class QWidget;

/// Asks for a file to write, where proposal stands at first; empty when the user cancels. A name
/// without an ending gets that of the filter, "CSV (*.csv)".
QString AskSavePath(QWidget* parent, const QString& title, const QString& filter,
                    const QString& proposal = QString());
