#include "segmenttablemodel.h"

#include "cutsegment.h"
#include "dataset.h"
#include <algorithm>

void SegmentTableModel::SetDataSet(DataSet* dataSet)
{
    if (dataSet != m_DataSet)
        Clear();
    m_DataSet = dataSet;
}

void SegmentTableModel::SetAttribute(int attribute)
{
    m_Attribute = attribute;
    if (!m_Bulk && !m_Rows.empty())
        emit dataChanged(index(0, COLUMN_SPARKLINE), index(rowCount() - 1, COLUMN_SPARKLINE));
}

void SegmentTableModel::Add(CutSegment* segment, const QColor& color)
{
    if (!segment || m_Tickets.contains(segment))
        return;
    if (!m_Bulk)
        beginInsertRows({}, rowCount(), rowCount());
    m_Rows.push_back({segment, color, m_NextTicket, {segment->GetFrom(), segment->GetTo()}});
    m_Tickets.insert(segment, m_NextTicket++);
    if (!m_Bulk)
        endInsertRows();
}

void SegmentTableModel::Remove(const QSet<CutSegment*>& segments)
{
    if (!m_Bulk && segments.size() == 1) {
        removeRow(FindRow(*segments.begin()));
        return;
    }
    const bool wasBulk = m_Bulk;
    BeginBulk();
    m_Rows.erase(std::remove_if(m_Rows.begin(), m_Rows.end(),
                                [&](const Row& row) { return segments.contains(row.m_Segment); }),
                 m_Rows.end());
    for (CutSegment* segment : segments)
        m_Tickets.remove(segment);
    if (!wasBulk)
        EndBulk();
}

void SegmentTableModel::removeRow(int row)
{
    if (row == -1)
        return;
    beginRemoveRows({}, row, row);
    m_Tickets.remove(GetSegment(row));
    m_Rows.erase(m_Rows.begin() + row);
    endRemoveRows();
}

void SegmentTableModel::Clear()
{
    const bool wasBulk = m_Bulk;
    BeginBulk();
    m_Rows.clear();
    m_Tickets.clear();
    if (!wasBulk)
        EndBulk();
}

void SegmentTableModel::BeginBulk()
{
    if (!m_Bulk)
        beginResetModel();
    m_Bulk = true;
}

void SegmentTableModel::EndBulk()
{
    if (!m_Bulk)
        return;
    m_Bulk = false;
    endResetModel();
}

int SegmentTableModel::FindRow(CutSegment* segment) const
{
    const auto ticket = m_Tickets.constFind(segment);
    if (ticket == m_Tickets.constEnd())
        return -1;
    const auto found =
        std::lower_bound(m_Rows.begin(), m_Rows.end(), *ticket,
                         [](const Row& row, quint64 wanted) { return row.m_Ticket < wanted; });
    return int(found - m_Rows.begin());
}

bool SegmentTableModel::IsShownBy(int row, const ShownSegment& segment) const
{
    const Row& shown = m_Rows[size_t(row)];
    return shown.m_Segment == segment.m_Segment && shown.m_Color == segment.m_RowColor &&
           shown.m_Span == RowSpan{segment.m_Segment->GetFrom(), segment.m_Segment->GetTo()};
}

int SegmentTableModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : int(m_Rows.size());
}

int SegmentTableModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : int(COLUMN_COUNT);
}

QVariant SegmentTableModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || index.column() != COLUMN_SPARKLINE)
        return {};
    const CutSegment* segment = GetSegment(index.row());
    if (role == Qt::ToolTipRole || role == Qt::AccessibleTextRole)
        return tr("%1 to %2, %3 rows")
            .arg(rowLabel(segment->GetFrom()), rowLabel(segment->GetTo()))
            .arg(segment->GetLength());
    return {};
}

QVariant SegmentTableModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return QAbstractTableModel::headerData(section, orientation, role);
    return section == COLUMN_BUTTONS ? tr("Accept / Reject") : tr("SparkLines");
}

QString SegmentTableModel::rowLabel(int row) const
{
    const int rows = m_DataSet ? m_DataSet->GetRowCount() : 0;
    if (rows == 0)
        return QString::number(row);
    // A segment ends before its end row, which the last one of a recording does not even have.
    return m_DataSet->GetRowLabel(qBound(0, row, rows - 1));
}
