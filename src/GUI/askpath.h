#pragma once

#include <QString>

class QWidget;

/// Asks for a file to write; empty when the user cancels. A name without an ending gets that of
/// the filter, "CSV (*.csv)".
QString AskSavePath(QWidget* parent, const QString& title, const QString& filter);
