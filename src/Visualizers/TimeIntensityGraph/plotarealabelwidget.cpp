#include "plotarealabelwidget.h"

#include "lineplotlabel.h"
#include "plotlook.h"
#include "timeaxis.h"
#include <QContextMenuEvent>
#include <QMenu>
#include <QMouseEvent>
#include <QPainter>
#include <algorithm>

PlotAreaLabelWidget::PlotAreaLabelWidget(QWidget* parent) : PlotAreaWidget(parent) {}

std::unique_ptr<LinePlot> PlotAreaLabelWidget::makePlot(int attribute)
{
    auto plot = std::make_unique<LinePlotLabel>(attribute);
    plot->SetLabelCollection(m_LabelCollection);
    return plot;
}

void PlotAreaLabelWidget::SetLabelCollection(const QList<StudyLabelInstance*>* labels)
{
    m_LabelCollection = labels;
    for (const auto& plot : m_Plots)
        static_cast<LinePlotLabel*>(plot.get())->SetLabelCollection(labels);
    repaintAll();
}

bool PlotAreaLabelWidget::GetSelection(int& from, int& to) const
{
    return toRows(m_Selection, from, to);
}

void PlotAreaLabelWidget::ClearSelection()
{
    m_Selection.Clear();
    update();
}

void PlotAreaLabelWidget::labelClicked(StudyLabelInstance* label)
{
    int from = 0;
    int to = 0;
    if (!GetSelection(from, to))
        return;
    label->AddSpan(from, to);
    m_Selection.Clear();
    repaintAll();
}

void PlotAreaLabelWidget::contextMenuEvent(QContextMenuEvent* event)
{
    constexpr int colorSize = 10;
    if (!m_LabelCollection || m_LabelCollection->isEmpty() || !m_Selection.IsValid())
        return;
    auto* menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    QMenu* sections = menu->addMenu(tr("Label Section"));
    for (StudyLabelInstance* label : *m_LabelCollection) {
        QPixmap color(colorSize, colorSize);
        color.fill(label->GetColor());
        sections->addAction(QIcon(color), label->GetName(), this, [=] { labelClicked(label); });
    }
    menu->popup(event->globalPos());
}

void PlotAreaLabelWidget::resizeEvent(QResizeEvent* event)
{
    m_Selection.Clear();
    PlotAreaWidget::resizeEvent(event);
}

void PlotAreaLabelWidget::mousePressEvent(QMouseEvent* event)
{
    const TimeAxis* axis = GetTimeAxis();
    if (axis && m_Selection.Press(*event, axis->GetStart().x()))
        update();
}

void PlotAreaLabelWidget::mouseMoveEvent(QMouseEvent* event)
{
    if ((event->buttons() & Qt::LeftButton) && m_Selection.Move(*event))
        update();
}

void PlotAreaLabelWidget::paintEvent(QPaintEvent* event)
{
    PlotAreaWidget::paintEvent(event);
    QPainter painter(this);
    painter.setOpacity(MarkOpacity);
    m_Selection.Paint(painter, height());
}
