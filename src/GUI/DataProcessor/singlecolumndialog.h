#pragma once

#include "derivationdialog.h"
#include "derivationparams.h"

/// Asks for one attribute to derive a new one from.
class SingleColumnDialog : public DerivationDialog
{
    Q_OBJECT
public:
    SingleColumnParams GetParams() const;

protected:
    SingleColumnDialog(const DataSet& dataSet, const QString& title,
                       const SingleColumnParams& start, QWidget* parent);

private:
    QComboBox* m_Attribute;
    QLineEdit* m_Name;
};
