#include "labellinegraphwidget.h"

#include "cutsegment.h"
#include "segmenttablemodel.h"
#include "sparklinedelegate.h"

LabelLineGraphWidget::LabelLineGraphWidget(SegmentTableModel* model, QWidget* parent)
    : QListView(parent), m_Segments(model)
{
    const QSize graph(150, 100);
    setModel(model);
    setModelColumn(SegmentTableModel::COLUMN_SPARKLINE);
    setItemDelegate(new SparklineDelegate(model, graph, true, this));
    setViewMode(QListView::IconMode);
    setMovement(QListView::Static);
    setResizeMode(QListView::Adjust);
    setUniformItemSizes(true);
    setSpacing(4);
    setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    setSelectionMode(QAbstractItemView::SingleSelection);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setAcceptDrops(false);
    setDragEnabled(false);
    connect(this, &QAbstractItemView::clicked, this, &LabelLineGraphWidget::showInTimeSeries);
    connect(this, &QAbstractItemView::activated, this, &LabelLineGraphWidget::showInTimeSeries);
}

void LabelLineGraphWidget::showInTimeSeries(const QModelIndex& index)
{
    const CutSegment* segment = m_Segments->GetSegment(index.row());
    emit ShowSelected(segment->GetFrom(), segment->GetTo());
}
