#include "thresholdslider.h"

#include <QHBoxLayout>
#include <QSignalBlocker>
#include <QSlider>
#include <QSpinBox>

ThresholdSlider::ThresholdSlider(int value, QWidget* parent)
    : QWidget(parent), m_Spin(new QSpinBox), m_Slider(new QSlider(Qt::Horizontal))
{
    m_Spin->setRange(0, 100);
    m_Slider->setRange(0, 100);
    SetValue(value);
    setToolTip(tr("The confidence that a match needs, in percent"));
    setFocusProxy(m_Spin);
    connect(m_Spin, QOverload<int>::of(&QSpinBox::valueChanged), m_Slider, &QSlider::setValue);
    connect(m_Slider, &QSlider::valueChanged, m_Spin, &QSpinBox::setValue);
    connect(m_Slider, &QSlider::valueChanged, this, &ThresholdSlider::ValueChanged);

    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_Spin);
    layout->addWidget(m_Slider, 1);
}

int ThresholdSlider::GetValue() const
{
    return m_Slider->value();
}

void ThresholdSlider::SetValue(int value)
{
    const QSignalBlocker spinBlocker(m_Spin);
    const QSignalBlocker sliderBlocker(m_Slider);
    m_Spin->setValue(value);
    m_Slider->setValue(value);
}
