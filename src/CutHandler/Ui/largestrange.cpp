#include "largestrange.h"

#include "dataset.h"
#include <algorithm>
#include <cmath>

double LargestRange(const DataSet& dataSet)
{
    double largest = 0.0;
    for (int attribute = 0; attribute < dataSet.GetAttributeCount(); ++attribute)
        largest = std::max(largest, double(dataSet.GetRawMax(attribute)) -
                                        double(dataSet.GetRawMin(attribute)));
    return std::ceil(largest);
}
