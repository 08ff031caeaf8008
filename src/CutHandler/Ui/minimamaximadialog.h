#pragma once

#include "cutparameters.h"
#include "formdialog.h"

/// Asks for what cutting at local minima and maxima needs.
class MinimaMaximaDialog : public FormDialog
{
    Q_OBJECT
public:
    MinimaMaximaDialog(const MinimaMaximaParameters& start, const DataSet& dataSet,
                       QWidget* parent = nullptr);

    MinimaMaximaParameters GetParameters() const;

private:
    QComboBox* m_Attribute;
    QDoubleSpinBox* m_Persistence;
};
