#pragma once

#include "cutparameters.h"
#include "formdialog.h"

/// Asks for what cutting at perceptually important points needs.
class PipCutDialog : public FormDialog
{
    Q_OBJECT
public:
    PipCutDialog(const PipCutParameters& start, const DataSet& dataSet, QWidget* parent = nullptr);

    PipCutParameters GetParameters() const;

private:
    QComboBox* m_Attribute;
    QComboBox* m_Measure;
    QComboBox* m_Stopping;
    QDoubleSpinBox* m_MinimumDistance;
    QSpinBox* m_Partitions;
};
