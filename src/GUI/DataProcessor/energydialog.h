#pragma once

#include "derivationdialog.h"
#include "derivationparams.h"

/// Asks for the attribute and the window of a signal energy.
class EnergyDialog : public DerivationDialog
{
    Q_OBJECT
public:
    explicit EnergyDialog(const DataSet& dataSet, const EnergyParams& start = {},
                          QWidget* parent = nullptr);

    EnergyParams GetParams() const;

private:
    QSpinBox* addWindowWithSlider(int start);

    QComboBox* m_Attribute;
    QSpinBox* m_Window;
    QLineEdit* m_Name;
};
