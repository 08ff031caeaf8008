#pragma once

#include "derivationdialog.h"
#include "derivationparams.h"

/// Asks for two attributes and what to do with them.
class BasicFunctionDialog : public DerivationDialog
{
    Q_OBJECT
public:
    explicit BasicFunctionDialog(const DataSet& dataSet, const BasicFunctionParams& start = {},
                                 QWidget* parent = nullptr);

    BasicFunctionParams GetParams() const;

private:
    void addOperation(const BasicFunctionParams& start);

    QComboBox* m_First;
    QComboBox* m_Operator;
    QComboBox* m_Second;
    QLineEdit* m_Name;
};
