#include "derivationdialog.h"

#include <QComboBox>
#include <QLineEdit>
#include <QSpinBox>
#include <algorithm>

DerivationDialog::DerivationDialog(const DataSet& dataSet, const QString& title, QWidget* parent)
    : FormDialog(QStringLiteral("<h2>%1</h2>").arg(title), parent), m_DataSet(dataSet)
{
    setModal(true);
    setWindowTitle(title);
}

VectorAttributes DerivationDialog::VectorBoxes::Get() const
{
    return {m_X->currentIndex(), m_Y->currentIndex(), m_Z->currentIndex()};
}

QComboBox* DerivationDialog::addAttribute(const QString& label, int start)
{
    return FormDialog::addAttribute(label, m_DataSet, start, tr("The attribute that is read"));
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

QLineEdit* DerivationDialog::addName(const QString& start)
{
    auto* edit = new QLineEdit(start);
    addRow(tr("Attribute Name"), edit, tr("The name of the new attribute"));
    return edit;
}
