#pragma once

#include "derivationdialog.h"
#include "derivationparams.h"
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QLineEdit>

/// Asks for an attribute and the value that parts it in two.
class ThresholdDialog : public DerivationDialog
{
    Q_OBJECT
public:
    explicit ThresholdDialog(const DataSet& dataSet, const ThresholdParams& start = {},
                             QWidget* parent = nullptr)
        : DerivationDialog(dataSet, tr("Threshold"), parent)
    {
        m_Attribute = addAttribute(tr("Data Attribute"), start.m_Attribute);
        m_Threshold = addReal(tr("Threshold Value"), start.m_Threshold,
                              tr("Rows at this value or above get 1, all others -1"));
        m_Name = addName(start.m_Name);
        addButtons();
    }

    ThresholdParams GetParams() const
    {
        return {m_Attribute->currentIndex(), m_Threshold->value(), m_Name->text()};
    }

private:
    QComboBox* m_Attribute;
    QDoubleSpinBox* m_Threshold;
    QLineEdit* m_Name;
};
