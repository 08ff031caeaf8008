#include "formdialog.h"

#include "attributebox.h"
#include "dataset.h"
#include "dialogbuttons.h"
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QFormLayout>
#include <QLabel>
#include <algorithm>

namespace
{
constexpr int usualMaximum = 99;
}

FormDialog::FormDialog(const QString& heading, QWidget* parent)
    : QDialog(parent), m_Form(new QFormLayout)
{
    auto* title = new QLabel(heading);
    title->setAlignment(Qt::AlignHCenter);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(title);
    layout->addLayout(m_Form);
    m_Form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
}

QComboBox* FormDialog::addChoice(const QString& label, const QStringList& choices, int current,
                                 const QString& toolTip)
{
    auto* box = new QComboBox;
    box->addItems(choices);
    box->setCurrentIndex(current);
    addRow(label, box, toolTip);
    return box;
}

QComboBox* FormDialog::makeAttributeBox(const DataSet& dataSet, int current)
{
    auto* box = new AttributeBox;
    box->FitToNames();
    box->SetDataSet(&dataSet);
    box->SetAttribute(current);
    return box;
}

QComboBox* FormDialog::addAttribute(const QString& label, const DataSet& dataSet, int current,
                                    const QString& toolTip)
{
    QComboBox* box = makeAttributeBox(dataSet, current);
    addRow(label, box, toolTip);
    return box;
}

QSpinBox* FormDialog::addNumber(const QString& label, int value, int maximum,
                                const QString& toolTip)
{
    auto* box = new QSpinBox;
    box->setMaximum(maximum);
    box->setValue(value);
    addRow(label, box, toolTip);
    return box;
}

QDoubleSpinBox* FormDialog::addReal(const QString& label, double value, const QString& toolTip)
{
    auto* box = new QDoubleSpinBox;
    box->setMaximum(std::max(box->maximum(), value));
    box->setValue(value);
    addRow(label, box, toolTip);
    return box;
}

QDoubleSpinBox* FormDialog::addPreciseReal(const QString& label, double value, double maximum,
                                           const QString& toolTip)
{
    constexpr int decimals = 6;
    constexpr double longestText = 1e15;
    QDoubleSpinBox* box = addReal(label, value, toolTip);
    box->setDecimals(decimals);
    box->setMaximum(std::max(box->maximum(), std::min(maximum, longestText)));
    // Again: it was rounded to fewer decimals.
    box->setValue(value);
    return box;
}

QSpinBox* FormDialog::addRowCount(const QString& label, int value, const DataSet& dataSet,
                                  const QString& toolTip)
{
    return addNumber(label, value, std::max({value, dataSet.GetRowCount(), usualMaximum}), toolTip);
}

void FormDialog::addButtons(const QString& acceptText)
{
    auto* box = static_cast<QBoxLayout*>(layout());
    box->addStretch();
    box->addLayout(MakeDialogButtons(this, acceptText));
}

void FormDialog::addRow(const QString& label, QWidget* field, const QString& toolTip)
{
    field->setToolTip(toolTip);
    m_Form->addRow(label, field);
    if (!focusWidget())
        field->setFocus();
}
