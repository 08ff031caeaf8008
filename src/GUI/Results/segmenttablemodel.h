#pragma once

#include "rowspan.h"
#include <QAbstractTableModel>
#include <QColor>
#include <QHash>
#include <QSet>
#include <vector>

class CutSegment;
class DataSet;

/// A segment as a panel shows it: its row and its line each have a colour.
struct ShownSegment {
    CutSegment* m_Segment = nullptr;
    QColor m_RowColor;
    QColor m_LineColor;
};

/// The segments that a panel shows, one a row in the order of their adding, each at most once.
///
/// In bulk mode the views learn of all changes at once, at its end.
class SegmentTableModel : public QAbstractTableModel
{
    Q_OBJECT
public:
    enum Column { COLUMN_BUTTONS, COLUMN_SPARKLINE, COLUMN_COUNT };

    using QAbstractTableModel::QAbstractTableModel;

    /// Rows hold their segments of that data set; another one takes the rows away.
    void SetDataSet(DataSet* dataSet);
    DataSet* GetDataSet() const { return m_DataSet; }
    void SetAttribute(int attribute);
    int GetAttribute() const { return m_Attribute; }

    void Add(CutSegment* segment, const QColor& color);
    /// Segments that are not there are passed over.
    void Remove(const QSet<CutSegment*>& segments);
    void Clear();
    void BeginBulk();
    void EndBulk();

    /// -1 when it is not there.
    int FindRow(CutSegment* segment) const;
    /// No bounds check.
    CutSegment* GetSegment(int row) const { return m_Rows[size_t(row)].m_Segment; }
    QColor GetColor(int row) const { return m_Rows[size_t(row)].m_Color; }
    /// Whether a row stands for that segment as it is: in that colour, with the ends it has now.
    bool IsShownBy(int row, const ShownSegment& segment) const;

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    struct Row {
        CutSegment* m_Segment;
        QColor m_Color;
        quint64 m_Ticket;
        // When it was added: a line may have been made of it.
        RowSpan m_Span;
    };
    void removeRow(int row);
    QString rowLabel(int row) const;

    DataSet* m_DataSet = nullptr;
    int m_Attribute = -1;
    bool m_Bulk = false;
    // By ascending ticket, so that removals leave the tickets of all others as they are.
    std::vector<Row> m_Rows;
    QHash<CutSegment*, quint64> m_Tickets;
    quint64 m_NextTicket = 0;
};
