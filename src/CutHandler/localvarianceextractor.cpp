#include "localvarianceextractor.h"

#include "dataset.h"
#include "localvariance.h"
#include "persistenceextractor.h"
#include "rowprogress.h"
#include <cmath>

void LocalVarianceExtractor::extract(const LocalVarianceParameters& parameters, Progress& progress)
{
    m_Indices.clear();
    if (!m_DataSet)
        return;
    for (const int attribute : {parameters.m_X, parameters.m_Y, parameters.m_Z}) {
        if (attribute < 0 || attribute >= m_DataSet->GetAttributeCount())
            return;
    }
    // Three axes, each smoothed and then walked by a window.
    RowProgress rows(progress, qint64(m_DataSet->GetRowCount()) * 6);
    const std::vector<float> variance = combinedVariance(parameters, rows);
    PersistenceExtractor persistence;
    if (rows.IsStopped() || !persistence.extract(variance, progress))
        return;
    for (const PairedExtrema& pair : persistence.getPairs(float(parameters.m_Threshold)))
        m_Indices.push_back(pair.m_MaxIndex);
}

std::vector<float>
LocalVarianceExtractor::combinedVariance(const LocalVarianceParameters& parameters,
                                         RowProgress& progress) const
{
    std::vector<double> squares(size_t(m_DataSet->GetRowCount()), 0.0);
    for (const int attribute : {parameters.m_X, parameters.m_Y, parameters.m_Z}) {
        const std::vector<float> means =
            BlockMeans(m_DataSet->GetColumn(attribute), parameters.m_SmoothingWindow,
                       parameters.m_SmoothingOverlap, &progress);
        const std::vector<float> variances =
            LocalVariances(means, parameters.m_VarianceWindow, &progress);
        for (size_t row = 0; row < squares.size(); ++row)
            squares[row] += double(variances[row]) * double(variances[row]);
    }
    std::vector<float> combined(squares.size());
    for (size_t row = 0; row < squares.size(); ++row) {
        const auto magnitude = float(std::sqrt(squares[row]));
        combined[row] = parameters.m_Threshold > double(magnitude) ? 0.0F : magnitude;
    }
    return combined;
}
