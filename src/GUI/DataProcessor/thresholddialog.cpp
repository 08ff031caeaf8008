#include "thresholddialog.h"

#include <QComboBox>
#include <QDoubleSpinBox>
#include <QLineEdit>

ThresholdDialog::ThresholdDialog(const DataSet& dataSet, const ThresholdParams& start,
                                 QWidget* parent)
    : DerivationDialog(dataSet, tr("Threshold"), parent)
{
    m_Attribute = addAttribute(tr("Data Attribute"), start.m_Attribute);
    m_Threshold = addReal(tr("Threshold Value"), start.m_Threshold,
                          tr("Rows at this value or above get 1, all others -1"));
    m_Name = addName(start.m_Name);
    addButtons();
}

ThresholdParams ThresholdDialog::GetParams() const
{
    return {m_Attribute->currentIndex(), m_Threshold->value(), m_Name->text()};
}
