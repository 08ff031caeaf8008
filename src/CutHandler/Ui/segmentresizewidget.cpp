#include "segmentresizewidget.h"

#include "dataset.h"
#include "selectionplotareawidget.h"
#include <QGroupBox>
#include <QLabel>
#include <QLayout>
#include <QSignalBlocker>
#include <QSpinBox>

namespace
{

// A box that says nothing while it is changed from here.
void setQuietly(QSpinBox* box, int value)
{
    const QSignalBlocker blocker(box);
    box->setValue(value);
}

void setRangeQuietly(QSpinBox* box, int from, int to)
{
    const QSignalBlocker blocker(box);
    box->setRange(from, to);
}

} // namespace

SegmentResizeWidget::SegmentResizeWidget(QWidget* parent)
    : QWidget(parent), m_Plot(new SelectionPlotAreaWidget)
{
    setWindowTitle(tr("Resize Segment"));
    auto* group = new QGroupBox(tr("Resize Segment"));
    auto* grid = new QGridLayout(group);
    m_Selection = makeBoxes(grid, tr("Cut Size "), tr("of the segment"));
    m_PlotRange = makeBoxes(grid, tr("Viz Range "), tr("that the plot shows"));
    grid->setRowStretch(grid->rowCount(), 1);
    m_Plot->setMinimumWidth(fontMetrics().averageCharWidth() * 40);

    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_Plot, 1);
    layout->addWidget(group);
    setFocusProxy(m_Selection.m_From);

    const auto changed = QOverload<int>::of(&QSpinBox::valueChanged);
    connect(m_Selection.m_From, changed, this, &SegmentResizeWidget::SetSelectionFromRange);
    connect(m_Selection.m_To, changed, this, &SegmentResizeWidget::SetSelectionToRange);
    connect(m_PlotRange.m_From, changed, this, &SegmentResizeWidget::SetFromPlotRange);
    connect(m_PlotRange.m_To, changed, this, &SegmentResizeWidget::SetToPlotRange);
}

SegmentResizeWidget::Boxes SegmentResizeWidget::makeBoxes(QGridLayout* grid, const QString& name,
                                                          const QString& hint)
{
    const int row = grid->rowCount();
    const auto add = [&](const QString& label, const QString& toolTip, int column) {
        auto* box = new QSpinBox;
        box->setToolTip(toolTip);
        box->setAccessibleName(QString(name % label));
        auto* caption = new QLabel(label);
        caption->setBuddy(box);
        grid->addWidget(caption, row, column);
        grid->addWidget(box, row, column + 1);
        return box;
    };
    grid->addWidget(new QLabel(name), row, 0);
    QSpinBox* from = add(tr("From: "), tr("First row %1").arg(hint), 1);
    return {from, add(tr("To: "), tr("End row %1").arg(hint), 3)};
}

void SegmentResizeWidget::SetDataSet(DataSet* dataSet)
{
    m_DataSet = dataSet;
    m_Plot->SetDataSet(dataSet);
    const int rows = dataSet ? dataSet->GetRowCount() : 0;
    SetLimits(0, rows);
    SetPlotRange(0, rows);
    SetAttribute(m_Attribute);
}

void SegmentResizeWidget::SetAttribute(int attribute)
{
    m_Attribute = attribute;
    if (m_DataSet)
        m_Plot->ClearAndAddPlot(attribute);
}

void SegmentResizeWidget::SetLimits(int from, int to)
{
    for (QSpinBox* box :
         {m_Selection.m_From, m_Selection.m_To, m_PlotRange.m_From, m_PlotRange.m_To})
        setRangeQuietly(box, from, to);
    showSelection();
    showPlotRange();
}

void SegmentResizeWidget::SetPlotRange(int from, int to)
{
    setQuietly(m_PlotRange.m_From, from);
    setQuietly(m_PlotRange.m_To, to);
    showPlotRange();
}

void SegmentResizeWidget::SetSelection(int from, int to)
{
    setQuietly(m_Selection.m_From, from);
    setQuietly(m_Selection.m_To, to);
    showSelection();
}

RowSpan SegmentResizeWidget::GetSelection() const
{
    return {m_Selection.m_From->value(), m_Selection.m_To->value()};
}

void SegmentResizeWidget::SetSelectionFromRange(int from)
{
    SetSelection(from, m_Selection.m_To->value());
}

void SegmentResizeWidget::SetSelectionToRange(int to)
{
    SetSelection(m_Selection.m_From->value(), to);
}

void SegmentResizeWidget::SetFromPlotRange(int from)
{
    SetPlotRange(from, m_PlotRange.m_To->value());
}

void SegmentResizeWidget::SetToPlotRange(int to)
{
    SetPlotRange(m_PlotRange.m_From->value(), to);
}

void SegmentResizeWidget::showSelection()
{
    m_Plot->SetSelection(m_Selection.m_From->value(), m_Selection.m_To->value());
    emit SelectionChanged();
}

void SegmentResizeWidget::showPlotRange()
{
    // While a number is being typed, the range may be empty or start behind its end.
    if (m_PlotRange.m_From->value() < m_PlotRange.m_To->value())
        m_Plot->PlotDataRange(m_PlotRange.m_From->value(), m_PlotRange.m_To->value());
}
