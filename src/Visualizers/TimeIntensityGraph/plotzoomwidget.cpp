#include "plotzoomwidget.h"

#include "plotarealabelwidget.h"
#include "zoomwidget.h"
#include <QScrollArea>
#include <QScrollBar>
#include <QVBoxLayout>

PlotZoomWidget::PlotZoomWidget(QWidget* parent)
    : QWidget(parent), m_ZoomWidget(new ZoomWidget), m_ScrollArea(new QScrollArea),
      m_PlotArea(new PlotAreaLabelWidget), m_View(m_ScrollArea, m_ZoomWidget)
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
    connect(&m_View, &ZoomedView::SizeAsked, m_PlotArea,
            [this](const QSize& size) { m_PlotArea->ResizePlots(size.width(), size.height()); });
    connect(&m_View, &ZoomedView::VisiblePartChanged, m_PlotArea,
            &PlotAreaLabelWidget::SetVisibleRange);
    connect(m_ZoomWidget, &ZoomWidget::ValueChanged, this, &PlotZoomWidget::resizeLinePlotWidget);
    connect(bar, &QScrollBar::sliderMoved, this, &PlotZoomWidget::updateSelection);
    connect(bar, &QScrollBar::valueChanged, this, &PlotZoomWidget::updateSelection);
    connect(bar, &QScrollBar::rangeChanged, this, &PlotZoomWidget::sliderRange);
}
