#pragma once

class DataSet;

/// The correlation (Pearson 1895, Proceedings of the Royal Society 58) of two equally long ranges
/// of rows of one attribute, -1 to 1. Rows count from start up to, but without, end.
///
/// 0 when the lengths differ or a range reaches beyond the data; not-a-number for empty ranges,
/// for a range of equal values and where a value is not finite.
double CorrelateRanges(const DataSet& data, int attribute, int startA, int endA, int startB,
                       int endB);
