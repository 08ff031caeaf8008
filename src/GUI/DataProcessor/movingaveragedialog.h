#pragma once

#include "derivationdialog.h"
#include "derivationparams.h"

/// Asks what to average, over which window.
class MovingAverageDialog : public DerivationDialog
{
    Q_OBJECT
public:
    explicit MovingAverageDialog(const DataSet& dataSet, const MovingAverageParams& start = {},
                                 QWidget* parent = nullptr);

    MovingAverageParams GetParams() const;

private:
    QComboBox* m_Attribute;
    QSpinBox* m_Window;
    QLineEdit* m_Name;
};
