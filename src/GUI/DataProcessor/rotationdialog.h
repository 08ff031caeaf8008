#pragma once

#include "derivationdialog.h"
#include "derivationparams.h"

/// Asks for a vector and the two angles to turn it back by.
class RotationDialog : public DerivationDialog
{
    Q_OBJECT
public:
    explicit RotationDialog(const DataSet& dataSet, const RotationParams& start = {},
                            QWidget* parent = nullptr);

    RotationParams GetParams() const;

private:
    VectorBoxes m_Vector;
    QComboBox* m_Pitch;
    QComboBox* m_Roll;
};
