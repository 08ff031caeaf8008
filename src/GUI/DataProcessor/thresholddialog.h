#pragma once

#include "derivationdialog.h"
#include "derivationparams.h"

/// Asks for an attribute and the value that parts it in two.
class ThresholdDialog : public DerivationDialog
{
    Q_OBJECT
public:
    explicit ThresholdDialog(const DataSet& dataSet, const ThresholdParams& start = {},
                             QWidget* parent = nullptr);

    ThresholdParams GetParams() const;

private:
    QComboBox* m_Attribute;
    QDoubleSpinBox* m_Threshold;
    QLineEdit* m_Name;
};
