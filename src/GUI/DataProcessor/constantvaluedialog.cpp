#include "constantvaluedialog.h"

#include <QDoubleSpinBox>
#include <QLineEdit>

ConstantValueDialog::ConstantValueDialog(const DataSet& dataSet, const ConstantValueParams& start,
                                         QWidget* parent)
    : DerivationDialog(dataSet, tr("Constant Value"), parent)
{
    m_Name = addName(start.m_Name);
    m_Value = addReal(tr("Value"), 0, tr("The value of all rows but the first"));
    m_Value->setRange(0, 360);
    m_Value->setValue(start.m_Value);
    addButtons();
}

ConstantValueParams ConstantValueDialog::GetParams() const
{
    return {m_Name->text(), m_Value->value()};
}
