#pragma once

#include "constspan.h"
#include "normalizedcorrelation.h"
#include "signalgroups.h"
#include <memory>

class DataSpectra;

/// The normalised correlation of a signal with the rows, by its stored mean and deviation, both
/// taken as single. See TemplateMatcher.
void CorrelateWithSignal(RowWindow& rows, const SignalTemplateDataObject& signal,
                         const ConfidenceSink& sink);

/// Rows of one attribute that are searched for one signal after the other. All of them are taken
/// from the same spectra where they can be.
class AttributeSearch
{
public:
    /// Borrows the values. members: with the signals to come, none of them longer than the rows.
    AttributeSearch(ConstSpan<double> rows, const std::vector<SignalGroups::Member>& members);
    ~AttributeSearch();

    /// Adds the sums of products at the windows' middles; what is no positive number adds nothing.
    void AddCorrelation(const SignalTemplateDataObject& signal, std::vector<float>& sums);
    /// The same for normalised correlation.
    void AddNormalizedCorrelation(const SignalTemplateDataObject& signal,
                                  std::vector<float>& sums) const;
    /// The same for Pearson's correlation by the mean and deviation of each window.
    void AddExactCorrelation(const SignalTemplateDataObject& signal,
                             std::vector<float>& sums) const;

private:
    ConstSpan<double> m_Rows;
    int m_SignalCount;
    int m_LongestSignal = 0;
    // Made when several signals are to be correlated with them.
    std::unique_ptr<DataSpectra> m_Spectra;
};
