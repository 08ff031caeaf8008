#include "correlation.h"

#include "dataset.h"
#include "statistics.h"
#include <cmath>

double CorrelateRanges(const DataSet& data, int attribute, int startA, int endA, int startB,
                       int endB)
{
    const int rows = data.GetRowCount();
    const auto isInside = [=](int start, int end) {
        return 0 <= start && start <= end && end <= rows;
    };
    const bool isAttribute = 0 <= attribute && attribute < data.GetAttributeCount();
    if (!isAttribute || !isInside(startA, endA) || !isInside(startB, endB) ||
        endA - startA != endB - startB)
        return 0.0;
    const ConstSpan<double> values = data.GetColumn(attribute);
    const auto value = [=](int row) { return values[row]; };
    const double meanA = MeanOver(startA, endA, value);
    const double meanB = MeanOver(startB, endB, value);
    const double deviationA = std::sqrt(SquaredDeviations(startA, endA, value, meanA));
    const double deviationB = std::sqrt(SquaredDeviations(startB, endB, value, meanB));
    const int shift = startB - startA;
    const double products = SumOver(
        startA, endA, [&](int row) { return (value(row) - meanA) * (value(row + shift) - meanB); });
    return products / (deviationB * deviationA);
}
