#pragma once

#include <QTableWidget>

class DataSet;

/// The first rows of a data set, not editable.
class PreviewTable : public QTableWidget
{
    Q_OBJECT
public:
    explicit PreviewTable(QWidget* parent = nullptr);

    /// Shows up to rows rows; the table has that many, whatever the data set holds. Without a
    /// data set the table has no columns. digits: significant digits of the values.
    void ShowDataSet(const DataSet* dataSet, int rows, int digits = 6);
};
