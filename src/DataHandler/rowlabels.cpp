#include "rowlabels.h"

#include <algorithm>

namespace
{

QString numberOf(int row)
{
    return QString::number(qint64(row) + 1);
}

} // namespace

QString RowLabels::Get(int row) const
{
    const auto own = m_Own.constFind(row);
    return own == m_Own.constEnd() ? usual(row) : *own;
}

void RowLabels::Set(int row, const QString& label)
{
    m_OwnRows.clear();
    m_Own.remove(row);
    // Whoever numbers the rows one by one gets by without storing anything.
    if (row == m_NumberedRows && label == numberOf(row))
        ++m_NumberedRows;
    else if (label != usual(row))
        m_Own.insert(row, label);
}

void RowLabels::NumberRows(int rows)
{
    m_Own.clear();
    m_OwnRows.clear();
    m_NumberedRows = rows;
}

int RowLabels::Find(const QString& label, int rowCount) const
{
    const int usualRow = findUsual(label, rowCount);
    const int ownRow = findOwn(label);
    return usualRow < 0 || ownRow < 0 ? std::max(usualRow, ownRow) : std::min(usualRow, ownRow);
}

QString RowLabels::usual(int row) const
{
    return row < m_NumberedRows ? numberOf(row) : QString();
}

int RowLabels::findUsual(const QString& label, int rowCount) const
{
    int row = label.isEmpty() ? m_NumberedRows : label.toInt() - 1;
    while (label.isEmpty() && m_Own.contains(row))
        ++row;
    const bool isUsual = row >= 0 && row < rowCount && usual(row) == label && !m_Own.contains(row);
    return isUsual ? row : -1;
}

int RowLabels::findOwn(const QString& label) const
{
    if (m_OwnRows.isEmpty()) {
        for (auto own = m_Own.begin(); own != m_Own.end(); ++own) {
            const auto found = m_OwnRows.find(own.value());
            if (found == m_OwnRows.end())
                m_OwnRows.insert(own.value(), own.key());
            else
                *found = std::min(*found, own.key());
        }
    }
    return m_OwnRows.value(label, -1);
}
