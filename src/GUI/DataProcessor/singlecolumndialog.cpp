#include "singlecolumndialog.h"

#include <QComboBox>
#include <QLineEdit>

SingleColumnDialog::SingleColumnDialog(const DataSet& dataSet, const QString& title,
                                       const SingleColumnParams& start, QWidget* parent)
    : DerivationDialog(dataSet, title, parent)
{
    m_Attribute = addAttribute(tr("Data Attribute"), start.m_Attribute);
    m_Name = addName(start.m_Name);
    addButtons();
}

SingleColumnParams SingleColumnDialog::GetParams() const
{
    return {m_Attribute->currentIndex(), m_Name->text()};
}
