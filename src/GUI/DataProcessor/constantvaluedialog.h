#pragma once

#include "derivationdialog.h"
#include "derivationparams.h"

/// Asks for the name and value of an attribute that never changes.
class ConstantValueDialog : public DerivationDialog
{
    Q_OBJECT
public:
    explicit ConstantValueDialog(const DataSet& dataSet, const ConstantValueParams& start = {},
                                 QWidget* parent = nullptr);

    ConstantValueParams GetParams() const;

private:
    QLineEdit* m_Name;
    QDoubleSpinBox* m_Value;
};
