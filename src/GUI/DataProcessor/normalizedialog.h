#pragma once

#include "singlecolumndialog.h"

/// Asks which attribute to normalise. Never shown: DerivativeDialog asks instead.
class NormalizeDialog : public SingleColumnDialog
{
    Q_OBJECT
public:
    explicit NormalizeDialog(const DataSet& dataSet, const SingleColumnParams& start = {},
                             QWidget* parent = nullptr)
        : SingleColumnDialog(dataSet, tr("Normalize"), start, parent)
    {
    }
};
