#include "searchcolumns.h"

#include "datatransformer.h"
#include <algorithm>
#include <cmath>

namespace
{

void bridgeGaps(double* values, int length)
{
    const auto isNumber = [](double value) { return std::isfinite(value); };
    const double* first = std::find_if(values, values + length, isNumber);
    double last = first == values + length ? 0.0 : *first;
    std::for_each(values, values + length, [&](double& value) {
        if (isNumber(value))
            last = value;
        else
            value = last;
    });
}

} // namespace

const double* SearchColumns::Get(int attribute)
{
    auto& column = m_Columns[attribute];
    if (!column) {
        int length = 0;
        column = DataTransformer(DataTransformer::TRANSFORM_NONE)
                     .TransformData(&m_Data, m_Start, m_End, attribute, length);
        bridgeGaps(column.get(), length);
    }
    return column.get();
}
