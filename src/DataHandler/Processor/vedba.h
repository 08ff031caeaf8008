#pragma once

#include "derivedcolumn.h"

/// The vectorial dynamic body acceleration, the length of the dynamic acceleration vector, in the
/// unit of its axes (Qasem et al. 2012, PLoS ONE 7; its forerunner ODBA adds up the absolute axes
/// instead, Wilson et al. 2006, Journal of Animal Ecology 75).
///
/// dynamic: the acceleration without its static part, see MovingAverage and Difference. Each axis
/// is narrowed to single precision first, the rest is double.
DataColumn Vedba(const DataSet& data, const VectorAttributes& dynamic);
