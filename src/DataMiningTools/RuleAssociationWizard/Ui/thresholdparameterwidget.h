#pragma once

#include "thresholdextractor.h"
#include <QWidget>

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

private:
    QComboBox* m_Operator;
    QComboBox* m_Attribute;
    QDoubleSpinBox* m_Value;
};
