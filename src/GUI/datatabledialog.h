#pragma once

#include "liverecording.h"
#include <QDialog>

class QLabel;
class QLineEdit;
class QTableWidget;

/// The raw values of a data set, in pages of a hundred rows.
class DataTableDialog : public QDialog
{
    Q_OBJECT
public:
    explicit DataTableDialog(DataSet* dataSet, QWidget* parent = nullptr);

public slots:
    void navPreviousPage();
    void navNextPage();
    /// Goes to the page whose number stands in the page box. Page n starts at row n * 100
    /// counted from 0, though the box says "1" for the first page when it opens: kept.
    void pageManuallySet();

private:
    QLayout* makeNavigation();
    void showFrom(qint64 from);
    void fillTable();

    DataSet* m_DataSet;
    QTableWidget* m_Table;
    QLineEdit* m_Page;
    QLabel* m_RowsShown;
    // The page as a span of rows; its last row may lie beyond the data.
    int m_From = 0;
    int m_To = 100;
};

/// Shows the raw values of a recording.
void ShowDataTable(const SharedRecording& recording, QWidget* parent);
