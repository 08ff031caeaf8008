#include "datatransformer.h"

#include "dataset.h"
#include <algorithm>

namespace
{

/// Values to transform, whose local mean is taken over values counted from another place on.
struct Source {
    const double* values;
    const double* meanValues;
    int length;
};

std::unique_ptr<double[]> copyRows(const DataSet& data, int start, int end, int attribute)
{
    const ConstSpan<double> rows = data.GetColumn(attribute).Part(start, end);
    std::unique_ptr<double[]> values(new double[size_t(end - start)]);
    std::copy(rows.begin(), rows.end(), values.get());
    return values;
}

bool holds(const DataSet* data, int start, int end, int attribute)
{
    return data && start >= 0 && start <= end && end <= data->GetRowCount() && attribute >= 0 &&
           attribute < data->GetAttributeCount();
}

std::unique_ptr<double[]> differences(const Source& source, int& size)
{
    size = std::max(source.length - 1, 0);
    auto result = std::make_unique<double[]>(size_t(size));
    for (int i = 0; i < size; ++i)
        result[size_t(i)] = source.values[i + 1] - source.values[i];
    return result;
}

std::unique_ptr<double[]> withoutLocalMean(const Source& source, int& size)
{
    constexpr int reach = 16;
    constexpr double share = 0.03125;
    size = source.length;
    auto result = std::make_unique<double[]>(size_t(size));
    for (int i = 0; i < size; ++i) {
        double sum = 0.0;
        for (int k = std::max(i - reach, 0); k < std::min(i + reach, size); ++k)
            sum += source.meanValues[k];
        result[size_t(i)] = source.values[i] - sum * share;
    }
    return result;
}

std::unique_ptr<double[]> transformed(int transform, const Source& source, int& size)
{
    switch (transform) {
    case DataTransformer::TRANSFORM_NONE: {
        size = source.length;
        std::unique_ptr<double[]> result(new double[size_t(size)]);
        std::copy_n(source.values, size, result.get());
        return result;
    }
    case DataTransformer::TRANSFORM_DERIVATIVE:
        return differences(source, size);
    case DataTransformer::TRANSFORM_LOCAL_MEAN:
        return withoutLocalMean(source, size);
    default:
        size = 0;
        return nullptr;
    }
}

} // namespace

std::unique_ptr<double[]> DataTransformer::TransformData(const DataSet* dataSet, int startID,
                                                         int endID, int attId,
                                                         int& dataOutSize) const
{
    dataOutSize = 0;
    if (!holds(dataSet, startID, endID, attId))
        return nullptr;
    const int length = endID - startID;
    auto values = copyRows(*dataSet, startID, endID, attId);
    if (m_Transform == TRANSFORM_NONE) {
        dataOutSize = length;
        return values;
    }
    const auto meanValues = copyRows(*dataSet, 0, length, attId);
    return transformed(m_Transform, {values.get(), meanValues.get(), length}, dataOutSize);
}

std::unique_ptr<double[]> DataTransformer::TransformData(const double* data, int length,
                                                         int& dataOutSize) const
{
    return transformed(m_Transform, {data, data, length}, dataOutSize);
}

std::unique_ptr<double[]> DataTransformer::computeDerivative(const DataSet* dataSet, int startID,
                                                             int endID, int attId,
                                                             int& dataOutSize) const
{
    return DataTransformer(TRANSFORM_DERIVATIVE)
        .TransformData(dataSet, startID, endID, attId, dataOutSize);
}
