#pragma once

#include "derivationdialog.h"
#include "derivationparams.h"
#include <QDoubleSpinBox>
#include <QLineEdit>

/// Asks for the name and value of an attribute that never changes.
class ConstantValueDialog : public DerivationDialog
{
    Q_OBJECT
public:
    explicit ConstantValueDialog(const DataSet& dataSet, const ConstantValueParams& start = {},
                                 QWidget* parent = nullptr)
        : DerivationDialog(dataSet, tr("Constant Value"), parent)
    {
        m_Name = addName(start.m_Name);
        m_Value = addReal(tr("Value"), 0, tr("The value of all rows but the first"));
        m_Value->setRange(0, 360);
        m_Value->setValue(start.m_Value);
        addButtons();
    }

    ConstantValueParams GetParams() const { return {m_Name->text(), m_Value->value()}; }

private:
    QLineEdit* m_Name;
    QDoubleSpinBox* m_Value;
};
