#include "pitchrolldialog.h"

#include <QDoubleSpinBox>
#include <algorithm>

namespace
{

// Of the first axis, as StandardAttributeName counts them.
constexpr int CORRECTED_ACCELERATION = 6;
constexpr int CORRECTED_COMPASS = 9;

} // namespace

PitchRollDialog::PitchRollDialog(const DataSet& dataSet, bool withCompass, QWidget* parent)
    : DerivationDialog(dataSet, tr("Pitch and Roll"), parent)
{
    m_Acceleration = addVector(tr("%1 Acc:"), findStandardVector(CORRECTED_ACCELERATION));
    if (withCompass)
        m_Compass = addVector(tr("%1 Comp:"), findStandardVector(CORRECTED_COMPASS));
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
