#include "normalizevectordialog.h"

NormalizeVectorDialog::NormalizeVectorDialog(const DataSet& dataSet, const VectorAttributes& start,
                                             QWidget* parent)
    : DerivationDialog(dataSet, tr("Normalize Vector"), parent)
{
    m_Vector = addVector(tr("%1 Att"), start);
    addButtons();
}

VectorAttributes NormalizeVectorDialog::GetParams() const
{
    return m_Vector.Get();
}
