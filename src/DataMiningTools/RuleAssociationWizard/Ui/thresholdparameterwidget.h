#pragma once

#include "thresholdextractor.h"
#include <QWidget>

class AttributeBox;
class QComboBox;
class QDoubleSpinBox;

/// One row of the threshold search: a comparison, an attribute and a value.
class ThresholdParameterWidget : public QWidget
{
    Q_OBJECT
public:
    explicit ThresholdParameterWidget(const DataSet* dataSet, QWidget* parent = nullptr);

    ThresholdParameter GetParameter() const;

signals:
    void RemoveRequested();
    void ParameterChanged();

private:
    void fitToAttribute(int attribute);

    const DataSet* m_DataSet;
    QComboBox* m_Operator;
    AttributeBox* m_Attribute;
    QDoubleSpinBox* m_Value;
};
