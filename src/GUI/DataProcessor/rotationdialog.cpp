#include "rotationdialog.h"

#include <QComboBox>

RotationDialog::RotationDialog(const DataSet& dataSet, const RotationParams& start, QWidget* parent)
    : DerivationDialog(dataSet, tr("Rotate Vector"), parent)
{
    m_Vector = addVector(tr("%1 Att"), start.m_Vector);
    m_Pitch = addAttribute(tr("Pitch"), start.m_Pitch);
    m_Roll = addAttribute(tr("Roll"), start.m_Roll);
    addButtons();
}

RotationParams RotationDialog::GetParams() const
{
    return {m_Vector.Get(), m_Pitch->currentIndex(), m_Roll->currentIndex()};
}
