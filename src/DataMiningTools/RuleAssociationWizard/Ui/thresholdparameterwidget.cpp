#include "thresholdparameterwidget.h"

#include "attributebox.h"
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

namespace
{

constexpr double largestValue = 1e12; // also a time in milliseconds
constexpr int decimals = 6;
constexpr double step = 0.1;

} // namespace

ThresholdParameterWidget::ThresholdParameterWidget(const DataSet* dataSet, QWidget* parent)
    : QWidget(parent), m_Operator(new QComboBox),
      m_Attribute(new AttributeBox(dataSet, tr("The attribute whose values are compared"))),
      m_Value(new QDoubleSpinBox)
{
    // In the order of ThresholdParameter::Operator.
    m_Operator->addItems({tr("value > attribute"), tr("value >= attribute"),
                          tr("attribute > value"), tr("attribute >= value")});
    m_Operator->setToolTip(tr("How the value at the right and the attribute compare"));
    m_Attribute->setAccessibleName(tr("Attribute"));
    m_Value->setRange(-largestValue, largestValue);
    m_Value->setDecimals(decimals);
    m_Value->setSingleStep(step);
    m_Value->setToolTip(tr("The value that the attribute is compared to"));
    m_Value->setAccessibleName(tr("Value"));
    auto* label = new QLabel(tr("Parameter"));
    label->setBuddy(m_Operator);
    auto* remove = new QPushButton(tr("Remove"));
    remove->setToolTip(tr("Take this parameter away"));
    connect(remove, &QPushButton::clicked, this, &ThresholdParameterWidget::RemoveRequested);

    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(label);
    layout->addWidget(m_Operator);
    layout->addWidget(m_Attribute, 1);
    layout->addWidget(m_Value);
    layout->addWidget(remove);
    setFocusProxy(m_Operator);
}

ThresholdParameter ThresholdParameterWidget::GetParameter() const
{
    return {m_Operator->currentIndex(), m_Attribute->currentIndex(), m_Value->value()};
}
