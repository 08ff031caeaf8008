#pragma once

#include "derivedcolumn.h"
#include <QDialog>

class QComboBox;
class QDoubleSpinBox;
class QFormLayout;
class QLineEdit;
class QSpinBox;
class QVBoxLayout;

/// What the dialogs of derived attributes have in common: a heading, a form and two buttons.
/// Derived classes add their rows from top to bottom, then the buttons.
class DerivationDialog : public QDialog
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

    /// A box with all attributes in column order, for a row of the form.
    QComboBox* makeAttributeBox(int start) const;
    QComboBox* addAttribute(const QString& label, int start);
    /// Three rows; labels: one with "%1" in the place of the axis.
    VectorBoxes addVector(const QString& labels, const VectorAttributes& start);
    /// A box for a window up to the length of the recording.
    QSpinBox* makeWindowBox(int start) const;
    QSpinBox* addWindow(int start);
    QDoubleSpinBox* addNumber(const QString& label, double start, const QString& toolTip);
    QLineEdit* addName(const QString& start);
    void addRow(const QString& label, QWidget* field, const QString& toolTip);
    QFormLayout* getForm() { return m_Form; }
    void addButtons(const QString& acceptText = tr("Compute"));

    const DataSet& m_DataSet;

private:
    QVBoxLayout* m_Layout;
    QFormLayout* m_Form;
};
