#pragma once

#include <QDialog>

class DataSet;
class QComboBox;
class QDoubleSpinBox;
class QFormLayout;
class QSpinBox;

/// What dialogs that ask for the inputs of a computation have in common: a heading, a form of
/// labelled fields, and two buttons. Derived classes add their rows from top to bottom, then the
/// buttons. The first field has the focus.
class FormDialog : public QDialog
{
    Q_OBJECT
protected:
    FormDialog(const QString& heading, QWidget* parent);

    void addRow(const QString& label, QWidget* field, const QString& toolTip);
    QComboBox* addChoice(const QString& label, const QStringList& choices, int current,
                         const QString& toolTip);
    /// A choice of all attributes in column order, for a row of the form.
    static QComboBox* makeAttributeBox(const DataSet& dataSet, int current);
    /// The same in a row of its own.
    QComboBox* addAttribute(const QString& label, const DataSet& dataSet, int current,
                            const QString& toolTip);
    /// A whole number from 0 to maximum.
    QSpinBox* addNumber(const QString& label, int value, int maximum, const QString& toolTip);
    QDoubleSpinBox* addReal(const QString& label, double value, const QString& toolTip);
    /// The same with six decimals; maximum fits in, too, up to 1e15.
    QDoubleSpinBox* addPreciseReal(const QString& label, double value, double maximum,
                                   const QString& toolTip);
    /// A number of rows; all of the data set's and the value itself fit in.
    QSpinBox* addRowCount(const QString& label, int value, const DataSet& dataSet,
                          const QString& toolTip);
    QFormLayout* form() const { return m_Form; }
    /// Closes the dialog's layout, after all fields: Tab walks in the order of creation.
    void addButtons(const QString& acceptText = tr("Compute"));

private:
    QFormLayout* m_Form;
};
