#include "plotarealabelwidget.h"

#include "lineplotlabel.h"
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
    const TimeAxis* axis = GetTimeAxis();
    if (!axis || !m_Selection.IsValid())
        return false;
    const int origin = std::max(m_From, 0);
    from = origin + axis->ToIndex(float(m_Selection.GetSelectionStart()));
    to = origin + axis->ToIndex(float(m_Selection.GetSelectionEnd()));
    return true;
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
    if (event->button() != Qt::LeftButton || !axis)
        return;
    m_Selection.Begin(event->pos().x(), axis->GetStart().x());
    update();
}

void PlotAreaLabelWidget::mouseMoveEvent(QMouseEvent* event)
{
    if (!(event->buttons() & Qt::LeftButton))
        return;
    m_Selection.SetEnd(event->pos().x());
    update();
}

void PlotAreaLabelWidget::paintEvent(QPaintEvent* event)
{
    constexpr double opacity = 0.4;
    PlotAreaWidget::paintEvent(event);
    QPainter painter(this);
    painter.setOpacity(opacity);
    m_Selection.Paint(painter, height());
}
