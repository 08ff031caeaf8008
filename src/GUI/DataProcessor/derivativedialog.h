#pragma once

#include "singlecolumndialog.h"

/// Asks which attribute to differentiate. The normalisation of an attribute shows it too.
class DerivativeDialog : public SingleColumnDialog
{
    Q_OBJECT
public:
    explicit DerivativeDialog(const DataSet& dataSet, const SingleColumnParams& start = {},
                              QWidget* parent = nullptr)
        : SingleColumnDialog(dataSet, tr("Derivative"), start, parent)
    {
    }
};
