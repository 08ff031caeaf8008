#pragma once

#include <memory>

class DataSet;

/// Copies values for a search, as they are or transformed.
class DataTransformer
{
public:
    enum Transform {
        TRANSFORM_NONE = 0,
        TRANSFORM_DERIVATIVE = 1, ///< first differences, one value less
        TRANSFORM_LOCAL_MEAN = 2  ///< values minus their local mean
    };

    explicit DataTransformer(int transform) : m_Transform(transform) {}

    /// Transforms rows startID to endID - 1 of an attribute; dataOutSize becomes the length of
    /// the result. Null and 0 for an unknown transform and for rows or an attribute that are not
    /// there.
    ///
    /// The local mean is that of the rows counted from 0 wherever the range starts, and always
    /// divided by 32: only the first rows lose their own mean, and values near the edges lose too
    /// little.
    std::unique_ptr<double[]> TransformData(const DataSet* dataSet, int startID, int endID,
                                            int attId, int& dataOutSize) const;
    /// The same for an array.
    std::unique_ptr<double[]> TransformData(const double* data, int length, int& dataOutSize) const;
    /// The first differences of rows startID to endID - 1, whatever the transform is.
    std::unique_ptr<double[]> computeDerivative(const DataSet* dataSet, int startID, int endID,
                                                int attId, int& dataOutSize) const;

private:
    int m_Transform;
};
