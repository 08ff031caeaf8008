#pragma once

#include <QString>

class DataSet;
class QWidget;

/// Writes the data to a file and tells the user how it went; false when it failed or the user
/// stopped it.
bool ExportDataFile(QWidget* parent, const DataSet* dataSet, const QString& path);
