#include "staticdynamicaccdialog.h"

#include <QSpinBox>

StaticDynamicAccDialog::StaticDynamicAccDialog(const DataSet& dataSet,
                                               const StaticDynamicAccParams& start, QWidget* parent)
    : DerivationDialog(dataSet, tr("Static & Dynamic Acceleration"), parent)
{
    m_Acceleration = addVector(tr("%1 Acc: "), start.m_Acceleration);
    m_Window = addWindow(start.m_Window);
    addButtons();
}

StaticDynamicAccParams StaticDynamicAccDialog::GetParams() const
{
    return {m_Acceleration.Get(), m_Window->value()};
}
