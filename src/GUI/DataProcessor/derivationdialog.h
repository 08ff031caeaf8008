#pragma once

#include "derivedcolumn.h"
#include "formdialog.h"

class QComboBox;
class QDoubleSpinBox;
class QLineEdit;
class QSpinBox;

/// What the dialogs of derived attributes have in common: a form over the attributes of a data
/// set.
class DerivationDialog : public FormDialog
{
    Q_OBJECT
protected:
    DerivationDialog(const DataSet& dataSet, const QString& title, QWidget* parent);

    /// The combo boxes of a vector's three axes.
    struct VectorBoxes {
        QComboBox* m_X;
        QComboBox* m_Y;
        QComboBox* m_Z;
        VectorAttributes Get() const;
    };

    QComboBox* addAttribute(const QString& label, int start);
    /// Three rows; labels: one with "%1" in the place of the axis.
    VectorBoxes addVector(const QString& labels, const VectorAttributes& start);
    /// A box for a window up to the length of the recording.
    QSpinBox* makeWindowBox(int start) const;
    QSpinBox* addWindow(int start);
    QLineEdit* addName(const QString& start);

    const DataSet& m_DataSet;
};
