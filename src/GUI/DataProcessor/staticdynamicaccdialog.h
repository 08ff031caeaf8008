#pragma once

#include "derivationdialog.h"
#include "derivationparams.h"
#include <QSpinBox>

/// Asks for the acceleration to part into gravity and movement, and the window of the average.
class StaticDynamicAccDialog : public DerivationDialog
{
    Q_OBJECT
public:
    explicit StaticDynamicAccDialog(const DataSet& dataSet,
                                    const StaticDynamicAccParams& start = {},
                                    QWidget* parent = nullptr)
        : DerivationDialog(dataSet, tr("Static & Dynamic Acceleration"), parent)
    {
        m_Acceleration = addVector(tr("%1 Acc: "), start.m_Acceleration);
        m_Window = addWindow(start.m_Window);
        addButtons();
    }

    StaticDynamicAccParams GetParams() const { return {m_Acceleration.Get(), m_Window->value()}; }

private:
    VectorBoxes m_Acceleration;
    QSpinBox* m_Window;
};
