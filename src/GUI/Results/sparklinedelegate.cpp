#include "sparklinedelegate.h"

#include "amplitudeline.h"
#include "cutsegment.h"
#include "dataset.h"
#include "plotlook.h"
#include "segmenttablemodel.h"
#include "timeaxis.h"
#include "verticalaxis.h"
#include <QPainter>

SparklineDelegate::SparklineDelegate(const SegmentTableModel* model, const QSize& size,
                                     bool showsRows, QObject* parent)
    : QStyledItemDelegate(parent), m_Model(model), m_Size(size), m_ShowsRows(showsRows)
{
}

void SparklineDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                              const QModelIndex& index) const
{
    constexpr int margin = 3;
    painter->save();
    painter->setClipRect(option.rect);
    paintBackground(painter, option);
    QRect area = option.rect.adjusted(margin, margin, -margin, -margin);
    if (m_ShowsRows)
        area = paintCaption(painter, area, index);
    paintLine(painter, area, index.row());
    painter->restore();
}

void SparklineDelegate::paintBackground(QPainter* painter, const QStyleOptionViewItem& option)
{
    constexpr double selectedOpacity = 0.3;
    QColor highlight = option.palette.color(QPalette::Highlight);
    painter->fillRect(option.rect, Qt::white);
    painter->setPen(highlight);
    if (option.state & QStyle::State_HasFocus)
        painter->drawRect(option.rect.adjusted(0, 0, -1, -1));
    highlight.setAlphaF(selectedOpacity);
    if (option.state & QStyle::State_Selected)
        painter->fillRect(option.rect, highlight);
}

QRect SparklineDelegate::paintCaption(QPainter* painter, const QRect& area,
                                      const QModelIndex& index)
{
    painter->setFont(PlotFont());
    painter->setPen(Qt::black);
    const QFontMetrics metrics = painter->fontMetrics();
    const QString text = index.data(Qt::AccessibleTextRole).toString();
    painter->drawText(area, Qt::AlignHCenter | Qt::AlignBottom,
                      metrics.elidedText(text, Qt::ElideRight, area.width()));
    painter->setPen(Qt::lightGray);
    painter->drawRect(area.adjusted(0, 0, -1, -metrics.height() - 2));
    return area.adjusted(0, 0, 0, -metrics.height());
}

void SparklineDelegate::paintLine(QPainter* painter, const QRect& area, int row) const
{
    constexpr float penWidth = 0.9F;
    DataSet* data = m_Model->GetDataSet();
    const int attribute = m_Model->GetAttribute();
    if (!data || attribute < 0 || attribute >= data->GetAttributeCount())
        return;
    const CutSegment* segment = m_Model->GetSegment(row);
    VerticalAxis values;
    values.SetTop(area.topLeft());
    values.SetBottom(area.bottomLeft());
    values.SetMinimum(data->GetMinValue(attribute));
    values.SetMaximum(data->GetMaxValue(attribute));
    TimeAxis rows;
    rows.SetStart(area.bottomLeft());
    rows.SetEnd(area.bottomRight());
    rows.SetNumberOfPoints(segment->GetLength());

    AmplitudeLine line(attribute);
    line.SetDataSet(data);
    line.SetTimeAxis(&rows);
    line.SetVerticalAxis(&values);
    line.SetColor(m_Model->GetColor(row));
    line.SetPenWidth(penWidth);
    line.SetRange(segment->GetFrom(), segment->GetTo());
    painter->setRenderHint(QPainter::Antialiasing);
    line.Paint(*painter);
}
