#pragma once

class SignalTemplateDataObject;

/// The mean and the population deviation of values.
struct MeanDeviation {
    MeanDeviation(const double* values, int length);

    double m_Mean = 0.0;
    double m_Deviation = 0.0;
};

/// Correlations in the time domain: slow, and plain enough to check others by. results[k] belongs
/// to the window of the data that starts at value k; there are length - m + 1 windows for a
/// signal of m values. Sums are in single precision, of products in double. The normalised forms
/// are Pearson's correlation (1895).

/// Adds the sum of products to results.
void CorrelateDirectly(const double* data, int length, const SignalTemplateDataObject& signal,
                       float* results);
/// Normalised by one mean and deviation of data for all windows, and by the stored ones of the
/// signal. A product of deviations of 0 counts as 1.
void CorrelateNormalized(const double* data, int length, const SignalTemplateDataObject& signal,
                         const MeanDeviation& all, float* results);
/// Normalised by the mean and deviation of each window.
void CorrelateNormalizedByWindow(const double* data, int length,
                                 const SignalTemplateDataObject& signal, float* results);
