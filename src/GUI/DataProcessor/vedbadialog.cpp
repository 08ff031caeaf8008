#include "vedbadialog.h"

#include <QLineEdit>

VedbaDialog::VedbaDialog(const DataSet& dataSet, const VedbaParams& start, QWidget* parent)
    : DerivationDialog(dataSet, tr("VeDBA"), parent)
{
    m_Dynamic = addVector(tr("Dynamic %1 Acc: "), start.m_Dynamic);
    m_Name = addName(start.m_Name);
    addButtons();
}

VedbaParams VedbaDialog::GetParams() const
{
    return {m_Dynamic.Get(), m_Name->text()};
}
