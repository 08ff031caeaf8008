#pragma once

#include "derivationdialog.h"
#include "derivationparams.h"

/// Asks for the vector to bring to length 1.
class NormalizeVectorDialog : public DerivationDialog
{
    Q_OBJECT
public:
    explicit NormalizeVectorDialog(const DataSet& dataSet, const VectorAttributes& start = {},
                                   QWidget* parent = nullptr)
        : DerivationDialog(dataSet, tr("Normalize Vector"), parent)
    {
        m_Vector = addVector(tr("%1 Att"), start);
        addButtons();
    }

    VectorAttributes GetParams() const { return m_Vector.Get(); }

private:
    VectorBoxes m_Vector;
};
