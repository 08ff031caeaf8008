#include "thresholdparameterwidget.h"

#include "attributebox.h"
#include "dataset.h"
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <algorithm>
#include <cmath>

namespace
{

constexpr double largestValue = 1e12; // also a time in milliseconds
constexpr int fewestDecimals = 6;
constexpr int mostDecimals = 15;
constexpr double step = 0.1;

} // namespace

ThresholdParameterWidget::ThresholdParameterWidget(const DataSet* dataSet, QWidget* parent)
    : QWidget(parent), m_DataSet(dataSet), m_Operator(new QComboBox),
      m_Attribute(new AttributeBox(dataSet, tr("The attribute whose values are compared"))),
      m_Value(new QDoubleSpinBox)
{
    // In the order of ThresholdParameter::Operator.
    m_Operator->addItems({tr("value > attribute"), tr("value >= attribute"),
                          tr("attribute > value"), tr("attribute >= value")});
    m_Operator->setToolTip(tr("How the value at the right and the attribute compare"));
    m_Attribute->setAccessibleName(tr("Attribute"));
    m_Value->setSingleStep(step);
    fitToAttribute(m_Attribute->GetAttribute());
    m_Value->setToolTip(tr("The value that the attribute is compared to"));
    m_Value->setAccessibleName(tr("Value"));
    auto* label = new QLabel(tr("Parameter"));
    label->setBuddy(m_Operator);
    auto* remove = new QPushButton(tr("Remove"));
    remove->setToolTip(tr("Take this parameter away"));
    connect(remove, &QPushButton::clicked, this, &ThresholdParameterWidget::RemoveRequested);
    connect(m_Attribute, &AttributeBox::AttributeChanged, this,
            &ThresholdParameterWidget::fitToAttribute);
    connect(m_Attribute, &AttributeBox::AttributeChanged, this,
            &ThresholdParameterWidget::ParameterChanged);
    connect(m_Operator, qOverload<int>(&QComboBox::currentIndexChanged), this,
            &ThresholdParameterWidget::ParameterChanged);
    connect(m_Value, qOverload<double>(&QDoubleSpinBox::valueChanged), this,
            &ThresholdParameterWidget::ParameterChanged);

    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(label);
    layout->addWidget(m_Operator);
    layout->addWidget(m_Attribute, 1);
    layout->addWidget(m_Value);
    layout->addWidget(remove);
    setFocusProxy(m_Operator);
}

// Every value of the attribute can be entered, with six digits of its largest.
void ThresholdParameterWidget::fitToAttribute(int attribute)
{
    double largest = 1.0;
    if (m_DataSet && attribute >= 0)
        largest = std::max(std::abs(double(m_DataSet->GetRawMin(attribute))),
                           std::abs(double(m_DataSet->GetRawMax(attribute))));
    const double limit = std::isfinite(largest) ? std::max(largest, largestValue) : largestValue;
    m_Value->setRange(-limit, limit);
    const bool isSmall = largest > 0.0 && largest < 1.0;
    const int zeros = isSmall ? int(-std::floor(std::log10(largest))) : 0;
    m_Value->setDecimals(std::min(fewestDecimals + zeros, mostDecimals));
}

ThresholdParameter ThresholdParameterWidget::GetParameter() const
{
    return {m_Operator->currentIndex(), m_Attribute->currentIndex(), m_Value->value()};
}
