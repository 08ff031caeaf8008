#include "normalizedialog.h"

NormalizeDialog::NormalizeDialog(const DataSet& dataSet, const SingleColumnParams& start,
                                 QWidget* parent)
    : SingleColumnDialog(dataSet, tr("Normalize"), start, parent)
{
}
