#pragma once

#include <QStyledItemDelegate>

class SegmentTableModel;

/// Paints a row of a segment table as the line of its segment for the attribute of the table, in
/// the segment's colour. All rows share the limits of the attribute.
class SparklineDelegate : public QStyledItemDelegate
{
    Q_OBJECT
public:
    /// size: what a cell would like to have. showsRows: whether the segment's rows stand below the
    /// line.
    SparklineDelegate(const SegmentTableModel* model, const QSize& size, bool showsRows,
                      QObject* parent);

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    QSize sizeHint(const QStyleOptionViewItem&, const QModelIndex&) const override
    {
        return m_Size;
    }

private:
    static void paintBackground(QPainter* painter, const QStyleOptionViewItem& option);
    /// Returns what is left of the area.
    static QRect paintCaption(QPainter* painter, const QRect& area, const QModelIndex& index);
    void paintLine(QPainter* painter, const QRect& area, int row) const;

    const SegmentTableModel* m_Model;
    const QSize m_Size;
    const bool m_ShowsRows;
};
