#include "cutdialog.h"

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

CutDialog::CutDialog(const QString& heading, QWidget* parent)
    : QDialog(parent), m_Form(new QFormLayout)
{
    auto* title = new QLabel(heading);
    title->setAlignment(Qt::AlignHCenter);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(title);
    layout->addLayout(m_Form);
    m_Form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
}

QComboBox* CutDialog::addChoice(const QString& label, const QStringList& choices, int current,
                                const QString& toolTip)
{
    auto* box = new QComboBox;
    box->addItems(choices);
    box->setCurrentIndex(current);
    addField(label, box, toolTip);
    return box;
}

QComboBox* CutDialog::addAttribute(const QString& label, const DataSet& dataSet, int current,
                                   const QString& toolTip)
{
    QStringList names;
    for (int i = 0; i < dataSet.GetAttributeCount(); ++i)
        names.append(dataSet.GetAttributeName(i));
    return addChoice(label, names, current, toolTip);
}

QSpinBox* CutDialog::addNumber(const QString& label, int value, int maximum, const QString& toolTip)
{
    auto* box = new QSpinBox;
    box->setMaximum(maximum);
    box->setValue(value);
    addField(label, box, toolTip);
    return box;
}

QDoubleSpinBox* CutDialog::addReal(const QString& label, double value, const QString& toolTip)
{
    auto* box = new QDoubleSpinBox;
    box->setValue(value);
    addField(label, box, toolTip);
    return box;
}

QSpinBox* CutDialog::addRowCount(const QString& label, int value, const DataSet& dataSet,
                                 const QString& toolTip)
{
    return addNumber(label, value, std::max({value, dataSet.GetRowCount(), usualMaximum}), toolTip);
}

void CutDialog::addButtons()
{
    auto* box = static_cast<QBoxLayout*>(layout());
    box->addStretch();
    box->addLayout(MakeDialogButtons(this, tr("Compute")));
}

void CutDialog::addField(const QString& label, QWidget* field, const QString& toolTip)
{
    field->setToolTip(toolTip);
    m_Form->addRow(label, field);
    if (!focusWidget())
        field->setFocus();
}
