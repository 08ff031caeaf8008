#include "templatematcher.h"

#include "alignedarray.h"
#include "blockcorrelation.h"
#include "cutcollection.h"
#include "dataset.h"
#include "datatransformer.h"
#include "directcorrelation.h"
#include "exclusionmark.h"
#include "patternsdataobject.h"
#include "rowwindow.h"
#include "runningnormalization.h"
#include "wholecorrelation.h"
#include <QElapsedTimer>
#include <QLoggingCategory>
#include <algorithm>
#include <limits>

Q_LOGGING_CATEGORY(lcMatcher, "skerrymoor.matcher", QtWarningMsg)

namespace
{

bool holdsAttribute(const DataSet& data, int attribute)
{
    return attribute >= 0 && attribute < data.GetAttributeCount();
}

bool canMatch(const DataSet* data, const SignalTemplateDataObject* signal, int attribute, int start,
              int end)
{
    return data && signal && holdsAttribute(*data, attribute) && start >= 0 &&
           end <= data->GetRowCount() && signal->GetLength() >= 1 &&
           signal->GetLength() <= end - start;
}

std::unique_ptr<double[]> copySignal(const SignalTemplateDataObject& signal)
{
    int length = 0;
    return DataTransformer(DataTransformer::TRANSFORM_NONE)
        .TransformData(signal.GetSignal(), signal.GetLength(), length);
}

void correlate(RowWindow& rows, const SignalTemplateDataObject& signal, float* results)
{
    const auto filter = copySignal(signal);
    CorrelateByBlocks(rows, filter.get(), signal.GetLength(), results);
}

void correlateNormalized(RowWindow& rows, const SignalTemplateDataObject& signal, float* results)
{
    const int width = signal.GetLength();
    const auto mean = double(float(signal.GetMean()));
    const auto filter = copySignal(signal);
    std::for_each(filter.get(), filter.get() + width, [=](double& value) { value -= mean; });

    const auto deviation = float(signal.GetSd());
    BlockCorrelation correlation(rows.GetLength(), filter.get(), width);
    const int windows = rows.GetLength() - width + 1;
    const int step = std::min(correlation.GetStep(), windows);
    RunningNormalization running(rows, width, step);
    float* middle = results + (width - 1) / 2;
    for (int done = 0, count = 0; done < windows; done += count) {
        count = std::min(step, windows - done);
        running.Advance(count);
        const double* sums = correlation.Correlate(running.GetCentred(), count);
        for (int i = 0; i < count; ++i) {
            const float scale = deviation * running.GetRootMeanSquares()[i];
            middle[done + i] = float(sums[i]) / (scale == 0.0F ? 1.0F : scale) / float(width);
        }
    }
}

/// Adds the confidences of one signal; what is no positive number adds nothing.
void addPositive(const std::vector<float>& confidences, std::vector<float>& sum)
{
    constexpr float largest = std::numeric_limits<float>::max();
    std::transform(sum.begin(), sum.end(), confidences.begin(), sum.begin(),
                   [=](float value, float confidence) {
                       return value +
                              (confidence > 0.0F && confidence <= largest ? confidence : 0.0F);
                   });
}

int countSignals(const PatternsDataObject& pattern)
{
    int count = 0;
    for (const auto* collection : pattern.GetSignalCollections())
        count += collection->GetSignals().size();
    return count;
}

} // namespace

TemplateMatcher::TemplateMatcher(DataSet* dataSet, PatternsDataObject* pattern, int option,
                                 int measure)
    : m_DataSet(dataSet), m_Pattern(pattern), m_Option(option), m_Measure(measure)
{
}

QString TemplateMatcher::getMeasureName(int measure)
{
    switch (measure) {
    case MEASURE_CORRELATION:
        return QStringLiteral("Correlation");
    case MEASURE_NORMALIZED_CORRELATION:
        return QStringLiteral("Normalized Correlation");
    default:
        return QString();
    }
}

bool TemplateMatcher::Convolve(const QHash<QString, int>& attributeMap)
{
    return Convolve(0, m_DataSet ? m_DataSet->GetRowCount() : 0, attributeMap);
}

bool TemplateMatcher::Convolve(int start, int end, const QHash<QString, int>& attributeMap)
{
    NoProgress progress;
    return match(start, end, attributeMap, progress);
}

bool TemplateMatcher::Convolve(Progress& progress, const QHash<QString, int>& attributeMap,
                               CutCollection* cuts, CutSegment::SEGMENT_STATE state)
{
    const int signalCount = m_Pattern ? countSignals(*m_Pattern) : 0;
    const int segments = cuts ? cuts->GetSegmentCount() : 0;
    progress.SetRange(0, signalCount + segments);
    const int rows = m_DataSet ? m_DataSet->GetRowCount() : 0;
    if (!match(0, rows, attributeMap, progress))
        return false;
    for (int i = 0; i < segments; ++i) {
        progress.SetValue(signalCount + i + 1);
        const CutSegment* segment = cuts->GetSegment(i);
        const int from = qBound(0, segment->GetFrom(), rows);
        const int to = qBound(from, segment->GetTo(), rows);
        for (size_t c = 0; segment->GetState() != state && c < m_Results.size(); ++c)
            std::fill_n(m_Results[c].begin() + from, to - from, ExclusionMark);
    }
    return true;
}

bool TemplateMatcher::refuse(const QString& message)
{
    m_ErrorMessage = message;
    return false;
}

bool TemplateMatcher::match(int start, int end, const QHash<QString, int>& attributeMap,
                            Progress& progress)
{
    m_ResultPointers.clear();
    m_Results.clear();
    if (!m_DataSet || !m_Pattern)
        return refuse(QStringLiteral("There is no data or no template."));
    if (start < 0 || start > end || end > m_DataSet->GetRowCount())
        return refuse(QStringLiteral("The rows to search are not in the data."));
    QElapsedTimer timer;
    timer.start();
    try {
        makeResults(end - start);
        if (!matchAll(start, end, attributeMap, progress))
            return refuse(QStringLiteral("There is no such measure."));
    } catch (const std::bad_alloc&) {
        m_ResultPointers.clear();
        m_Results.clear();
        return refuse(QString::fromLatin1(MemoryLimitError().what()));
    }
    qCDebug(lcMatcher) << "Time taken:" << timer.elapsed() << "No Templates:" << m_Results.size();
    return true;
}

void TemplateMatcher::makeResults(int length)
{
    for (int i = 0; i < m_Pattern->GetSignalCollections().size(); ++i)
        m_Results.emplace_back(size_t(length));
    for (auto& result : m_Results)
        m_ResultPointers.push_back(result.data());
}

bool TemplateMatcher::matchAll(int start, int end, const QHash<QString, int>& attributeMap,
                               Progress& progress)
{
    int done = 0;
    for (size_t c = 0; c < m_Results.size(); ++c) {
        const auto& collection = m_Pattern->GetSignalCollections()[int(c)]->GetSignals();
        for (const auto* signal : collection) {
            const int attribute = attributeMap.value(signal->GetAttributeName(), 0);
            if (canMatch(m_DataSet, signal, attribute, start, end) &&
                !addMatches(RowWindow(*m_DataSet, attribute, start, end), *signal, m_Results[c]))
                return false;
            progress.SetValue(++done);
        }
        const auto count = float(std::max(collection.size(), 1));
        std::for_each(m_Results[c].begin(), m_Results[c].end(),
                      [=](float& value) { value /= count; });
    }
    return true;
}

bool TemplateMatcher::addMatches(RowWindow rows, const SignalTemplateDataObject& signal,
                                 std::vector<float>& sum) const
{
    if (getMeasureName(m_Measure).isEmpty())
        return false;
    std::vector<float> confidences(sum.size());
    if (m_Measure == MEASURE_CORRELATION)
        correlate(rows, signal, confidences.data());
    else
        correlateNormalized(rows, signal, confidences.data());
    addPositive(confidences, sum);
    return true;
}

void TemplateMatcher::normalizeResults(float** results, int collections, int length, float& min,
                                       float& max)
{
    min = max = 0.0F;
    if (collections < 1 || length < 1)
        return;
    min = max = results[0][0];
    for (int c = 0; c < collections; ++c) {
        for (int i = 0; i < length; ++i) {
            if (results[c][i] == ExclusionMark)
                continue;
            min = std::min(min, results[c][i]);
            max = std::max(max, results[c][i]);
        }
    }
    const float range = max - min == 0.0F ? 1.0F : max - min;
    for (int c = 0; c < collections; ++c)
        for (int i = 0; i < length; ++i)
            if (results[c][i] != ExclusionMark)
                results[c][i] = (results[c][i] - min) / range;
}

void TemplateMatcher::normalizeArray(float* values, int length, float min, float max)
{
    const float range = max - min == 0.0F ? 1.0F : max - min;
    std::for_each(values, values + length, [=](float& value) { value = (value - min) / range; });
}

void TemplateMatcher::normalizeArrays(float** values, int count, int length, float min, float max)
{
    for (int i = 0; i < count; ++i)
        normalizeArray(values[i], length, min, max);
}

void TemplateMatcher::convolveFast(const double* data, int dataLength, const double* filter,
                                   int filterLength, float* results)
{
    if (filterLength >= 1 && filterLength <= dataLength)
        CorrelateWhole(data, dataLength, filter, filterLength, results);
}

void TemplateMatcher::fastNormalizedRunningCorrelation(const DataSet* dataSet,
                                                       const SignalTemplateDataObject* signal,
                                                       int attribute, float* results,
                                                       int startIndex, int endIndex)
{
    if (!canMatch(dataSet, signal, attribute, startIndex, endIndex))
        return;
    RowWindow rows(*dataSet, attribute, startIndex, endIndex);
    correlateNormalized(rows, *signal, results);
}

void TemplateMatcher::directCorrelation(const DataSet* dataSet,
                                        const SignalTemplateDataObject* signal, int attribute,
                                        float* results, int startIndex, int endIndex)
{
    if (!canMatch(dataSet, signal, attribute, startIndex, endIndex))
        return;
    RowWindow rows(*dataSet, attribute, startIndex, endIndex);
    CorrelateDirectly(rows.Get(0, rows.GetLength()), rows.GetLength(), *signal, results);
}

void TemplateMatcher::normalizedCorrelation(const DataSet* dataSet,
                                            const SignalTemplateDataObject* signal, int attribute,
                                            float* results, int startIndex, int endIndex)
{
    if (!canMatch(dataSet, signal, attribute, startIndex, endIndex))
        return;
    const int length = dataSet->GetRowCount();
    RowWindow rows(*dataSet, attribute, 0, length);
    const double* column = rows.Get(0, length);
    CorrelateNormalized(column + startIndex, endIndex - startIndex, *signal, {column, length},
                        results);
}

void TemplateMatcher::normalizedRunningCorrelation(const DataSet* dataSet,
                                                   const SignalTemplateDataObject* signal,
                                                   int attribute, float* results, int startIndex,
                                                   int endIndex)
{
    if (!canMatch(dataSet, signal, attribute, startIndex, endIndex))
        return;
    RowWindow rows(*dataSet, attribute, startIndex, endIndex);
    CorrelateNormalizedByWindow(rows.Get(0, rows.GetLength()), rows.GetLength(), *signal, results);
}
