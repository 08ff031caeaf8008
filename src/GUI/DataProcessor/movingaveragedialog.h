#pragma once

#include "derivationdialog.h"
#include "derivationparams.h"
#include <QComboBox>
#include <QLineEdit>
#include <QSpinBox>

/// Asks what to average, over which window.
class MovingAverageDialog : public DerivationDialog
{
    Q_OBJECT
public:
    explicit MovingAverageDialog(const DataSet& dataSet, const MovingAverageParams& start = {},
                                 QWidget* parent = nullptr)
        : DerivationDialog(dataSet, tr("Moving Average"), parent)
    {
        m_Attribute = addAttribute(tr("Data Attribute"), start.m_Attribute);
        m_Window = addWindow(start.m_Window);
        m_Name = addName(start.m_Name);
        addButtons();
    }

    MovingAverageParams GetParams() const
    {
        return {m_Attribute->currentIndex(), m_Window->value(), m_Name->text()};
    }

private:
    QComboBox* m_Attribute;
    QSpinBox* m_Window;
    QLineEdit* m_Name;
};
