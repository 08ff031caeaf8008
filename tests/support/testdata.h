#pragma once

#include "dataset.h"
#include <QStringList>
#include <memory>
#include <vector>

/// A data set from text: one line per row, values separated by blanks. Attributes are named by
/// names, or "A", "B", ... and typed ATTRIBUTE_OTHER; ranges are computed, rows labelled 1 on.
std::unique_ptr<DataSet> MakeDataSet(const char* rows, const QStringList& names = {});

/// A data set of attributes "A", "B", ... whose values swing from row to row.
std::unique_ptr<DataSet> MakeRecording(int rows, int attributes = 1);

/// A data set of one attribute "A", for values that text cannot give or too many of them.
std::unique_ptr<DataSet> MakeColumn(const std::vector<double>& values);
