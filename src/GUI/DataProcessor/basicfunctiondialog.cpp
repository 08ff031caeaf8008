#include "basicfunctiondialog.h"

#include <QComboBox>
#include <QFormLayout>
#include <QLineEdit>

BasicFunctionDialog::BasicFunctionDialog(const DataSet& dataSet, const BasicFunctionParams& start,
                                         QWidget* parent)
    : DerivationDialog(dataSet, tr("Basic Function"), parent)
{
    addOperation(start);
    m_Name = addName(start.m_Name);
    addButtons();
}

void BasicFunctionDialog::addOperation(const BasicFunctionParams& start)
{
    m_First = makeAttributeBox(m_DataSet, start.m_First);
    m_Operator = new QComboBox;
    m_Operator->addItems({tr("Subtract"), tr("Add"), tr("Multiply"), tr("Division")});
    m_Operator->setCurrentIndex(start.m_Operator);
    m_Second = makeAttributeBox(m_DataSet, start.m_Second);
    m_First->setToolTip(tr("The first attribute"));
    m_Operator->setToolTip(tr("What is done with the two attributes"));
    m_Second->setToolTip(tr("The second attribute"));
    auto* row = new QHBoxLayout;
    for (QComboBox* box : {m_First, m_Operator, m_Second}) {
        // There is no label to read out.
        box->setAccessibleName(box->toolTip());
        row->addWidget(box);
    }
    form()->addRow(row);
}

BasicFunctionParams BasicFunctionDialog::GetParams() const
{
    return {m_First->currentIndex(), m_Operator->currentIndex(), m_Second->currentIndex(),
            m_Name->text()};
}
