#pragma once

#include "derivationdialog.h"
#include "derivationparams.h"

/// Asks for the acceleration to part into gravity and movement, and the window of the average.
class StaticDynamicAccDialog : public DerivationDialog
{
    Q_OBJECT
public:
    explicit StaticDynamicAccDialog(const DataSet& dataSet,
                                    const StaticDynamicAccParams& start = {},
                                    QWidget* parent = nullptr);

    StaticDynamicAccParams GetParams() const;

private:
    VectorBoxes m_Acceleration;
    QSpinBox* m_Window;
};
