#include "plotzoomwidget.h"

#include "plotarealabelwidget.h"
#include "zoomwidget.h"
#include <QScrollArea>
#include <QScrollBar>
#include <QVBoxLayout>

PlotZoomWidget::PlotZoomWidget(QWidget* parent)
    : QWidget(parent), m_ZoomWidget(new ZoomWidget), m_ScrollArea(new QScrollArea),
      m_PlotArea(new PlotAreaLabelWidget)
{
    m_ZoomWidget->setMinimum(1);
    m_ZoomWidget->setMaximum(500);
    m_ZoomWidget->setSingleStep(1);
    m_ZoomWidget->setMaximumWidth(400);
    m_PlotArea->SetViewportOnly(true);
    m_PlotArea->SetRightMargin(30);
    m_ScrollArea->setMinimumHeight(180);
    m_ScrollArea->setWidget(m_PlotArea);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_ZoomWidget);
    layout->addWidget(m_ScrollArea);

    const QScrollBar* bar = m_ScrollArea->horizontalScrollBar();
    connect(m_ZoomWidget, &ZoomWidget::ValueChanged, this, &PlotZoomWidget::resizeLinePlotWidget);
    connect(bar, &QScrollBar::sliderMoved, this, &PlotZoomWidget::updateSelection);
    connect(bar, &QScrollBar::valueChanged, this, &PlotZoomWidget::updateSelection);
    connect(bar, &QScrollBar::rangeChanged, this, &PlotZoomWidget::sliderRange);
}

void PlotZoomWidget::resizeLinePlotWidget()
{
    m_PlotArea->ResizePlots(m_ZoomWidget->value() * (m_ScrollArea->width() - 5),
                            m_ScrollArea->height() - 20);
    updateSelection();
}

void PlotZoomWidget::sliderRange(int minimum, int maximum)
{
    if (minimum == 0 && maximum == 0)
        m_PlotArea->SetVisibleRange(-1, -1);
    else
        updateSelection();
}

void PlotZoomWidget::updateSelection()
{
    const QScrollBar* bar = m_ScrollArea->horizontalScrollBar();
    m_PlotArea->SetVisibleRange(bar->value(), bar->value() + bar->width());
}

void PlotZoomWidget::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    resizeLinePlotWidget();
}
