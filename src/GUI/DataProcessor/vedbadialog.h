#pragma once

#include "derivationdialog.h"
#include "derivationparams.h"

/// Asks for the dynamic acceleration of which to take the length.
class VedbaDialog : public DerivationDialog
{
    Q_OBJECT
public:
    explicit VedbaDialog(const DataSet& dataSet, const VedbaParams& start = {},
                         QWidget* parent = nullptr);

    VedbaParams GetParams() const;

private:
    VectorBoxes m_Dynamic;
    QLineEdit* m_Name;
};
