#pragma once

#include "derivationdialog.h"
#include "derivationparams.h"
#include <QLineEdit>

/// Asks for the dynamic acceleration of which to take the length.
class VedbaDialog : public DerivationDialog
{
    Q_OBJECT
public:
    explicit VedbaDialog(const DataSet& dataSet, const VedbaParams& start = {},
                         QWidget* parent = nullptr)
        : DerivationDialog(dataSet, tr("VeDBA"), parent)
    {
        m_Dynamic = addVector(tr("Dynamic %1 Acc: "), start.m_Dynamic);
        m_Name = addName(start.m_Name);
        addButtons();
    }

    VedbaParams GetParams() const { return {m_Dynamic.Get(), m_Name->text()}; }

private:
    VectorBoxes m_Dynamic;
    QLineEdit* m_Name;
};
