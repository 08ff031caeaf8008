#pragma once

#include <QHash>
#include <QString>

/// The labels of a table's rows. Recordings number their rows from 1 on: such labels are made when
/// they are asked for, and only those that differ are stored.
class RowLabels
{
public:
    QString Get(int row) const;
    void Set(int row, const QString& label);
    /// Labels that many rows, from the first on, with their numbers from 1 on.
    void NumberRows(int rows);
    /// The first of the table's rows with that label, -1 when there is none. rowCount: of the
    /// table.
    int Find(const QString& label, int rowCount) const;

private:
    QString usual(int row) const;
    int findUsual(const QString& label, int rowCount) const;
    int findOwn(const QString& label) const;

    // Rows in front of this one are numbered, those from it on have no label.
    int m_NumberedRows = 0;
    // Labels that are not the usual ones.
    QHash<int, QString> m_Own;
    // The first row of each of these; empty until it is needed.
    mutable QHash<QString, int> m_OwnRows;
};
