#include "attributesearch.h"

#include "dataspectra.h"
#include "datatransformer.h"
#include "pearsoncorrelation.h"
#include "rowwindow.h"
#include "signaltemplatedataobject.h"
#include <algorithm>
#include <limits>

namespace
{

std::unique_ptr<double[]> copySignal(const SignalTemplateDataObject& signal)
{
    int length = 0;
    return DataTransformer(DataTransformer::TRANSFORM_NONE)
        .TransformData(signal.GetSignal(), signal.GetLength(), length);
}

/// What adds a signal's confidences at the windows' middles.
auto adderTo(std::vector<float>& sums, const SignalTemplateDataObject& signal)
{
    float* middles = sums.data() + (signal.GetLength() - 1) / 2;
    return [middles](int first, const auto* confidences, int count) {
        constexpr float largest = std::numeric_limits<float>::max();
        for (int i = 0; i < count; ++i) {
            const auto confidence = float(confidences[i]);
            middles[first + i] += confidence > 0.0F && confidence <= largest ? confidence : 0.0F;
        }
    };
}

} // namespace

void CorrelateWithSignal(RowWindow& rows, const SignalTemplateDataObject& signal,
                         const ConfidenceSink& sink)
{
    const auto mean = double(float(signal.GetMean()));
    const auto filter = copySignal(signal);
    std::for_each(filter.get(), filter.get() + signal.GetLength(),
                  [=](double& value) { value -= mean; });
    CorrelateNormalized(rows, filter.get(), signal.GetLength(), float(signal.GetSd()), sink);
}

AttributeSearch::AttributeSearch(ConstSpan<double> rows,
                                 const std::vector<SignalGroups::Member>& members)
    : m_Rows(rows), m_SignalCount(int(members.size()))
{
    for (const auto& member : members)
        m_LongestSignal = std::max(m_LongestSignal, member.m_Signal->GetLength());
}

AttributeSearch::~AttributeSearch() = default;

void AttributeSearch::AddCorrelation(const SignalTemplateDataObject& signal,
                                     std::vector<float>& sums)
{
    const auto filter = copySignal(signal);
    RowWindow rows(m_Rows);
    if (m_SignalCount == 1) {
        CorrelateByBlocks(rows, filter.get(), signal.GetLength(), adderTo(sums, signal));
        return;
    }
    if (!m_Spectra)
        m_Spectra = std::make_unique<DataSpectra>(rows, m_LongestSignal);
    m_Spectra->Correlate(filter.get(), signal.GetLength(), adderTo(sums, signal));
}

void AttributeSearch::AddNormalizedCorrelation(const SignalTemplateDataObject& signal,
                                               std::vector<float>& sums) const
{
    RowWindow rows(m_Rows);
    CorrelateWithSignal(rows, signal, adderTo(sums, signal));
}

void AttributeSearch::AddExactCorrelation(const SignalTemplateDataObject& signal,
                                          std::vector<float>& sums) const
{
    RowWindow rows(m_Rows);
    CorrelatePearson(rows, signal.GetSignal(), signal.GetLength(), adderTo(sums, signal));
}
