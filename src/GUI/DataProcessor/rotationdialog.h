#pragma once

#include "derivationdialog.h"
#include "derivationparams.h"
#include <QComboBox>

/// Asks for a vector and the two angles to turn it back by.
class RotationDialog : public DerivationDialog
{
    Q_OBJECT
public:
    explicit RotationDialog(const DataSet& dataSet, const RotationParams& start = {},
                            QWidget* parent = nullptr)
        : DerivationDialog(dataSet, tr("Rotate Vector"), parent)
    {
        m_Vector = addVector(tr("%1 Att"), start.m_Vector);
        m_Pitch = addAttribute(tr("Pitch"), start.m_Pitch);
        m_Roll = addAttribute(tr("Roll"), start.m_Roll);
        addButtons();
    }

    RotationParams GetParams() const
    {
        return {m_Vector.Get(), m_Pitch->currentIndex(), m_Roll->currentIndex()};
    }

private:
    VectorBoxes m_Vector;
    QComboBox* m_Pitch;
    QComboBox* m_Roll;
};
