#include "derivativedialog.h"

DerivativeDialog::DerivativeDialog(const DataSet& dataSet, const SingleColumnParams& start,
                                   QWidget* parent)
    : SingleColumnDialog(dataSet, tr("Derivative"), start, parent)
{
}
