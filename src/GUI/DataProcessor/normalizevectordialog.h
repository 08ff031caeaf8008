#pragma once

#include "derivationdialog.h"
#include "derivationparams.h"

/// Asks for the vector to bring to length 1.
class NormalizeVectorDialog : public DerivationDialog
{
    Q_OBJECT
public:
    explicit NormalizeVectorDialog(const DataSet& dataSet, const VectorAttributes& start = {},
                                   QWidget* parent = nullptr);

    VectorAttributes GetParams() const;

private:
    VectorBoxes m_Vector;
};
