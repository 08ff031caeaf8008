#pragma once

#include "derivationdialog.h"
#include "derivationparams.h"
#include <QComboBox>
#include <QLineEdit>

/// Asks for one attribute to derive a new one from.
class SingleColumnDialog : public DerivationDialog
{
    Q_OBJECT
public:
    SingleColumnParams GetParams() const { return {m_Attribute->currentIndex(), m_Name->text()}; }

protected:
    SingleColumnDialog(const DataSet& dataSet, const QString& title,
                       const SingleColumnParams& start, QWidget* parent)
        : DerivationDialog(dataSet, title, parent)
    {
        m_Attribute = addAttribute(tr("Data Attribute"), start.m_Attribute);
        m_Name = addName(start.m_Name);
        addButtons();
    }

private:
    QComboBox* m_Attribute;
    QLineEdit* m_Name;
};
