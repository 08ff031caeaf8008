#include "wholecorrelation.h"

#include "alignedarray.h"
#include "complextorealfft.h"
#include "realtocomplexfft.h"
#include <QElapsedTimer>
#include <algorithm>
#include <omp.h>

Q_LOGGING_CATEGORY(lcMatcher, "skerrymoor.matcher", QtWarningMsg)

namespace
{

/// Traces how long the stages take, in milliseconds.
class StageTimer
{
public:
    explicit StageTimer(const char* start)
    {
        qCDebug(lcMatcher) << start;
        m_Timer.start();
    }
    void Log(const char* stage) { qCDebug(lcMatcher) << stage << m_Timer.restart(); }

private:
    QElapsedTimer m_Timer;
};

struct Values {
    const double* values;
    int length;
};

struct RealArrays {
    explicit RealArrays(size_t length) : data(length), filter(length), product(length) {}
    AlignedArray<double> data, filter, product;
};

struct Spectra {
    explicit Spectra(size_t length) : data(length), filter(length), product(length) {}
    AlignedArray<std::complex<double>> data, filter, product;
};

/// product = data * conjugate(filter)
void multiply(Spectra& spectra)
{
    for (size_t i = 0; i < spectra.product.GetSize(); ++i)
        spectra.product[i] = spectra.data[i] * std::conj(spectra.filter[i]);
}

void populate(const Values& data, const Values& filter, RealArrays& arrays, StageTimer& stages)
{
    std::copy_n(data.values, data.length, arrays.data.GetData() + filter.length - 1);
    stages.Log("populating data");
    std::copy_n(filter.values, filter.length, arrays.filter.GetData());
    stages.Log("populating filter");
}

struct Plans {
    const RealToComplexFft& data;
    const RealToComplexFft& filter;
    const ComplexToRealFft& back;
};

void correlate(const Plans& plans, RealArrays& arrays, Spectra& spectra, StageTimer& stages)
{
    plans.data.Transform(arrays.data.GetData(), spectra.data.GetData());
    stages.Log("data to fq domain");
    plans.filter.Transform(arrays.filter.GetData(), spectra.filter.GetData());
    stages.Log("filter to fq domain");
    multiply(spectra);
    stages.Log("perform cross correlation");
    plans.back.Transform(spectra.product.GetData(), arrays.product.GetData());
}

} // namespace

void CorrelateWhole(const double* data, int dataLength, const double* filter, int filterLength,
                    float* results)
{
    StageTimer stages("starting fast convolve");
    const int length = dataLength + filterLength - 1;
    RealArrays arrays{size_t(length)};
    stages.Log("input arrays");
    Spectra spectra(size_t(length) / 2 + 1);
    stages.Log("output arrays");

    FftPlan::SetThreadCount(omp_get_max_threads());
    FftPlan::SetPlannerEffort(FftPlan::EstimateEffort);
    stages.Log("transformations");
    const RealToComplexFft dataFft(length, arrays.data.GetData(), spectra.data.GetData());
    stages.Log("transformation 1");
    const RealToComplexFft filterFft(length, arrays.filter.GetData(), spectra.filter.GetData());
    stages.Log("transformation 2");
    const ComplexToRealFft back(length, spectra.product.GetData(), arrays.product.GetData());
    stages.Log("backward transformation 3");

    populate({data, dataLength}, {filter, filterLength}, arrays, stages);
    correlate({dataFft, filterFft, back}, arrays, spectra, stages);
    for (int i = filterLength - 1; i < dataLength; ++i)
        results[i - filterLength / 2] = float(arrays.product[size_t(i)] * back.GetScale());
    stages.Log("back to time domain");
}
