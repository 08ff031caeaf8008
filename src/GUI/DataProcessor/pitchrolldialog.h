#pragma once

#include "derivationdialog.h"
#include "derivationparams.h"

/// Asks for the acceleration, and in its extended form also the compass, to take angles from.
/// Starts with the corrected attributes where the data set has them.
class PitchRollDialog : public DerivationDialog
{
    Q_OBJECT
public:
    explicit PitchRollDialog(const DataSet& dataSet, bool withCompass = false,
                             QWidget* parent = nullptr);

    PitchRollParams GetParams() const;

private:
    /// The attributes of that name and its two followers in the table of standard names; the
    /// first attribute where there is none.
    VectorAttributes findStandardVector(int id) const;

    VectorBoxes m_Acceleration;
    VectorBoxes m_Compass{};
    QDoubleSpinBox* m_SmoothingRate;
};
