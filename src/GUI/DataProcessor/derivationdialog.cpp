#include "derivationdialog.h"

#include "dialogbuttons.h"
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QSpinBox>
#include <algorithm>

DerivationDialog::DerivationDialog(const DataSet& dataSet, const QString& title, QWidget* parent)
    : QDialog(parent), m_DataSet(dataSet), m_Layout(new QVBoxLayout(this)), m_Form(new QFormLayout)
{
    setModal(true);
    setWindowTitle(title);
    auto* heading = new QLabel(QStringLiteral("<h2>%1</h2>").arg(title));
    heading->setAlignment(Qt::AlignCenter);
    m_Form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    m_Layout->addWidget(heading);
    m_Layout->addLayout(m_Form);
    m_Layout->addStretch();
}

VectorAttributes DerivationDialog::VectorBoxes::Get() const
{
    return {m_X->currentIndex(), m_Y->currentIndex(), m_Z->currentIndex()};
}

QComboBox* DerivationDialog::makeAttributeBox(int start) const
{
    auto* box = new QComboBox;
    for (int i = 0; i < m_DataSet.GetAttributeCount(); ++i)
        box->addItem(m_DataSet.GetAttributeName(i));
    box->setCurrentIndex(start);
    return box;
}

QComboBox* DerivationDialog::addAttribute(const QString& label, int start)
{
    QComboBox* box = makeAttributeBox(start);
    addRow(label, box, tr("The attribute that is read"));
    return box;
}

DerivationDialog::VectorBoxes DerivationDialog::addVector(const QString& labels,
                                                          const VectorAttributes& start)
{
    QComboBox* x = addAttribute(labels.arg(QLatin1Char('X')), start.m_X);
    QComboBox* y = addAttribute(labels.arg(QLatin1Char('Y')), start.m_Y);
    QComboBox* z = addAttribute(labels.arg(QLatin1Char('Z')), start.m_Z);
    return {x, y, z};
}

QSpinBox* DerivationDialog::makeWindowBox(int start) const
{
    auto* box = new QSpinBox;
    box->setMaximum(std::max(box->maximum(), m_DataSet.GetRowCount()));
    box->setValue(start);
    return box;
}

QSpinBox* DerivationDialog::addWindow(int start)
{
    QSpinBox* box = makeWindowBox(start);
    addRow(tr("Window Size"), box, tr("Rows that are averaged around each row"));
    return box;
}

QDoubleSpinBox* DerivationDialog::addNumber(const QString& label, double start,
                                            const QString& toolTip)
{
    auto* box = new QDoubleSpinBox;
    box->setMaximum(std::max(box->maximum(), start));
    box->setValue(start);
    addRow(label, box, toolTip);
    return box;
}

QLineEdit* DerivationDialog::addName(const QString& start)
{
    auto* edit = new QLineEdit(start);
    addRow(tr("Attribute Name"), edit, tr("The name of the new attribute"));
    return edit;
}

void DerivationDialog::addRow(const QString& label, QWidget* field, const QString& toolTip)
{
    field->setToolTip(toolTip);
    m_Form->addRow(label, field);
}

void DerivationDialog::addButtons(const QString& acceptText)
{
    m_Layout->addLayout(MakeDialogButtons(this, acceptText));
}
