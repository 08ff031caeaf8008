#include "pitchrolldialog.h"

#include <QDoubleSpinBox>
#include <algorithm>

PitchRollDialog::PitchRollDialog(const DataSet& dataSet, bool withCompass, QWidget* parent)
    : DerivationDialog(dataSet, tr("Pitch and Roll"), parent)
{
    m_Acceleration = addVector(tr("%1 Acc:"), findStandardVector(STANDARD_ACC_X_COR));
    if (withCompass)
        m_Compass = addVector(tr("%1 Comp:"), findStandardVector(STANDARD_COMP_X_COR));
    m_SmoothingRate = addReal(tr("Smoothing Rate:"), 2.0 * dataSet.m_SamplingRate,
                              tr("Rows to smooth over; pitch and roll from the menu ignore it"));
    addButtons(tr("Save"));
}

PitchRollParams PitchRollDialog::GetParams() const
{
    return {m_Acceleration.Get(), m_Compass.m_X ? m_Compass.Get() : VectorAttributes(),
            m_SmoothingRate->value()};
}

VectorAttributes PitchRollDialog::findStandardVector(int id) const
{
    const auto find = [this](int name) {
        return std::max(m_DataSet.GetAttributeIndex(StandardAttributeName(name)), 0);
    };
    return {find(id), find(id + 1), find(id + 2)};
}
