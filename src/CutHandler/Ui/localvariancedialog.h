#pragma once

#include "cutparameters.h"
#include "formdialog.h"

/// Asks for what cutting at sharp transitions needs.
class LocalVarianceDialog : public FormDialog
{
    Q_OBJECT
public:
    LocalVarianceDialog(const LocalVarianceParameters& start, const DataSet& dataSet,
                        QWidget* parent = nullptr);

    LocalVarianceParameters GetParameters() const;

private:
    QComboBox* m_X;
    QComboBox* m_Y;
    QComboBox* m_Z;
    QSpinBox* m_SmoothingWindow;
    QSpinBox* m_SmoothingOverlap;
    QSpinBox* m_VarianceWindow;
    QDoubleSpinBox* m_Threshold;
};
