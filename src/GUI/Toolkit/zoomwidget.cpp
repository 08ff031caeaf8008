#include "zoomwidget.h"

#include "resourcepath.h"
#include <QHBoxLayout>
#include <QIcon>
#include <QPushButton>
#include <QSlider>

ZoomWidget::ZoomWidget(QWidget* parent) : QWidget(parent), m_Slider(new QSlider(Qt::Horizontal))
{
    auto* zoomOut =
        new QPushButton(QIcon(ResourcePath(QStringLiteral("icons/zoom_out.png"))), QString());
    zoomOut->setToolTip(tr("Zoom Out"));
    zoomOut->setAccessibleName(tr("Zoom Out"));
    auto* zoomIn =
        new QPushButton(QIcon(ResourcePath(QStringLiteral("icons/zoom_in.png"))), QString());
    zoomIn->setToolTip(tr("Zoom In"));
    zoomIn->setAccessibleName(tr("Zoom In"));
    m_Slider->setToolTip(tr("Zoom"));

    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(zoomOut);
    layout->addWidget(m_Slider);
    layout->addWidget(zoomIn);

    connect(zoomOut, &QPushButton::clicked, this, &ZoomWidget::decrementZoom);
    connect(zoomIn, &QPushButton::clicked, this, &ZoomWidget::incrementZoom);
    connect(m_Slider, &QSlider::valueChanged, this, &ZoomWidget::ValueChanged);
}

void ZoomWidget::setMinimum(int minimum)
{
    m_Slider->setMinimum(minimum);
}

void ZoomWidget::setMaximum(int maximum)
{
    m_Slider->setMaximum(maximum);
}

void ZoomWidget::setSingleStep(int step)
{
    m_Slider->setSingleStep(step);
}

void ZoomWidget::setValue(int value)
{
    m_Slider->setValue(value);
}

int ZoomWidget::value() const
{
    return m_Slider->value();
}

void ZoomWidget::incrementZoom()
{
    m_Slider->setValue(m_Slider->value() + 1);
}

void ZoomWidget::decrementZoom()
{
    m_Slider->setValue(m_Slider->value() - 1);
}
