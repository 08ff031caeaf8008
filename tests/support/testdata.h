#pragma once

#include "dataset.h"
#include <QStringList>
#include <memory>

/// A data set from text: one line per row, values separated by blanks. Attributes are named by
/// names, or "A", "B", ... and typed ATTRIBUTE_OTHER; ranges are computed, rows labelled 1 on.
std::unique_ptr<DataSet> MakeDataSet(const char* rows, const QStringList& names = {});
