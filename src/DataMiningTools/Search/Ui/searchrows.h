#pragma once

#include <QScrollArea>

class QVBoxLayout;

/// Rows of fields below each other, of which the last few show.
class SearchRows : public QScrollArea
{
    Q_OBJECT
public:
    explicit SearchRows(QWidget* parent = nullptr);

    /// Appends a row, shows it and moves the focus into it.
    void AddRow(QWidget* row);
    /// Takes a row away for good.
    void RemoveRow(QWidget* row);

private:
    QVBoxLayout* m_Rows;
};
