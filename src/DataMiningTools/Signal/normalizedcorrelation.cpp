#include "normalizedcorrelation.h"

#include "blockcorrelation.h"
#include "rowwindow.h"
#include "runningnormalization.h"
#include "vectorclones.h"
#include <algorithm>

namespace
{

SKERRYMOOR_VECTOR_CLONES
void normalize(const double* sums, const float* roots, int count, float deviation, float length,
               float* confidences)
{
    for (int i = 0; i < count; ++i) {
        const float scale = deviation * roots[i];
        confidences[i] = float(sums[i]) / (scale == 0.0F ? 1.0F : scale) / length;
    }
}

} // namespace

void CorrelateNormalized(RowWindow& rows, const double* filter, int filterLength, float deviation,
                         const ConfidenceSink& sink)
{
    BlockCorrelation correlation(rows.GetLength(), filterLength);
    const FilterSpectrum spectrum(correlation.GetFft(), filter, filterLength);
    RunningNormalization running(rows, filterLength, correlation.GetStep());
    std::vector<float> confidences(size_t(correlation.GetStep()));
    const int windows = rows.GetLength() - filterLength + 1;
    for (int done = 0, count = 0; done < windows; done += count) {
        count = std::min(correlation.GetStep(), windows - done);
        running.Advance(count);
        const double* sums = correlation.Correlate(running.GetCentred(), spectrum);
        normalize(sums, running.GetRootMeanSquares(), count, deviation, float(filterLength),
                  confidences.data());
        sink(done, confidences.data(), count);
    }
}
