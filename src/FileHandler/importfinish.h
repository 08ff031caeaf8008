#pragma once

#include "headerpresets.h"

class DataSet;

/// Makes a freshly read table the data set of the program: drops the first "Time" and the first
/// "Date" column from the headers and from every row, numbers the rows from 1 and passes names,
/// types and sampling rate on. Further time or date columns stay. The data set must hold a row.
void FinishImport(DataSet& data, ColumnHeaders& headers, int samplingRate);
