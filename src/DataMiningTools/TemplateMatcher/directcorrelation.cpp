#include "directcorrelation.h"

#include "signaltemplatedataobject.h"
#include <cmath>
#include <numeric>

MeanDeviation::MeanDeviation(const double* values, int length)
    : m_Mean(std::accumulate(values, values + length, 0.0) / length)
{
    double sum = 0.0;
    for (int i = 0; i < length; ++i)
        sum += (values[i] - m_Mean) * (values[i] - m_Mean);
    m_Deviation = std::sqrt(sum / length);
}

void CorrelateDirectly(const double* data, int length, const SignalTemplateDataObject& signal,
                       float* results)
{
    for (int start = 0; start + signal.GetLength() <= length; ++start)
        for (int j = 0; j < signal.GetLength(); ++j)
            results[start] =
                float(double(results[start]) + data[start + j] * signal.GetSignal()[j]);
}

void CorrelateNormalized(const double* data, int length, const SignalTemplateDataObject& signal,
                         const MeanDeviation& all, float* results)
{
    const auto signalMean = double(float(signal.GetMean()));
    const double product = all.m_Deviation * double(float(signal.GetSd()));
    const double scale = product == 0.0 ? 1.0 : product;
    for (int start = 0; start + signal.GetLength() <= length; ++start) {
        float sum = 0.0F;
        for (int j = 0; j < signal.GetLength(); ++j)
            sum = float(double(sum) + (signal.GetSignal()[j] - signalMean) *
                                          (data[start + j] - all.m_Mean) / scale);
        results[start] = sum / float(signal.GetLength());
    }
}

void CorrelateNormalizedByWindow(const double* data, int length,
                                 const SignalTemplateDataObject& signal, float* results)
{
    const int width = signal.GetLength();
    for (int start = 0; start + width <= length; ++start) {
        CorrelateNormalized(data + start, width, signal, {data + start, width}, results + start);
    }
}
