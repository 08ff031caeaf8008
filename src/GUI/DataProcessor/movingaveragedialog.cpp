#include "movingaveragedialog.h"

#include <QComboBox>
#include <QLineEdit>
#include <QSpinBox>

MovingAverageDialog::MovingAverageDialog(const DataSet& dataSet, const MovingAverageParams& start,
                                         QWidget* parent)
    : DerivationDialog(dataSet, tr("Moving Average"), parent)
{
    m_Attribute = addAttribute(tr("Data Attribute"), start.m_Attribute);
    m_Window = addWindow(start.m_Window);
    m_Name = addName(start.m_Name);
    addButtons();
}

MovingAverageParams MovingAverageDialog::GetParams() const
{
    return {m_Attribute->currentIndex(), m_Window->value(), m_Name->text()};
}
