#include "templatematcher.h"

#include "alignedarray.h"
#include "attributesearch.h"
#include "cutcollection.h"
#include "dataset.h"
#include "directcorrelation.h"
#include "patternsdataobject.h"
#include "pearsoncorrelation.h"
#include "rowwindow.h"
#include "wholecorrelation.h"
#include <QElapsedTimer>
#include <algorithm>

namespace
{

bool holdsAttribute(const DataSet& data, int attribute)
{
    return attribute >= 0 && attribute < data.GetAttributeCount();
}

bool canMatch(const DataSet* data, const SignalTemplateDataObject* signal, int attribute,
              RowSpan rows)
{
    return data && signal && holdsAttribute(*data, attribute) && rows.m_From >= 0 &&
           rows.m_To <= data->GetRowCount() && signal->GetLength() >= 1 &&
           signal->GetLength() <= rows.GetLength();
}

int countSignals(const PatternsDataObject& pattern)
{
    int count = 0;
    for (const auto* collection : pattern.GetSignalCollections())
        count += collection->GetSignals().size();
    return count;
}

/// Those of a group's signals that fit into the rows.
std::vector<SignalGroups::Member> fittingOf(const SignalGroups::Group& group, const DataSet* data,
                                            RowSpan rows)
{
    std::vector<SignalGroups::Member> fitting;
    for (const auto& member : group.m_Members) {
        if (canMatch(data, member.m_Signal, group.m_Attribute, rows))
            fitting.push_back(member);
    }
    return fitting;
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
    case MEASURE_EXACT_CORRELATION:
        return QStringLiteral("Normalized Correlation (Exact)");
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
    Results results;
    if (!match({start, end}, attributeMap, progress, results))
        return false;
    take(std::move(results));
    return true;
}

bool TemplateMatcher::Convolve(Progress& progress, const QHash<QString, int>& attributeMap,
                               CutCollection* cuts, CutSegment::SEGMENT_STATE state)
{
    const int segments = cuts ? cuts->GetSegmentCount() : 0;
    progress.SetRange(0, (m_Pattern ? countSignals(*m_Pattern) : 0) + segments);
    Results results;
    if (!match({0, m_DataSet ? m_DataSet->GetRowCount() : 0}, attributeMap, progress, results) ||
        (cuts && !markOthers(*cuts, state, progress, results)))
        return false;
    take(std::move(results));
    return true;
}

bool TemplateMatcher::markOthers(const CutCollection& cuts, CutSegment::SEGMENT_STATE state,
                                 Progress& progress, Results& results)
{
    const int rows = m_DataSet->GetRowCount();
    for (int i = 0; i < cuts.GetSegmentCount(); ++i) {
        progress.SetValue(++m_Done);
        if (isStopped(progress))
            return false;
        const CutSegment* segment = cuts.GetSegment(i);
        const int from = qBound(0, segment->GetFrom(), rows);
        const int to = qBound(from, segment->GetTo(), rows);
        for (size_t c = 0; segment->GetState() != state && c < results.size(); ++c)
            std::fill_n(results[c].begin() + from, to - from, ExclusionMark);
    }
    return true;
}

bool TemplateMatcher::refuse(const QString& message)
{
    m_ErrorMessage = message;
    return false;
}

bool TemplateMatcher::isStopped(const Progress& progress)
{
    return progress.IsStopRequested() && !refuse(QStringLiteral("The search was stopped."));
}

void TemplateMatcher::take(Results results)
{
    m_Results = std::move(results);
    m_ResultPointers.clear();
    for (auto& result : m_Results)
        m_ResultPointers.push_back(result.data());
}

bool TemplateMatcher::match(RowSpan rows, const QHash<QString, int>& attributeMap,
                            Progress& progress, Results& results)
{
    if (!m_DataSet || !m_Pattern)
        return refuse(QStringLiteral("There is no data or no template."));
    if (rows.m_From < 0 || rows.m_From > rows.m_To || rows.m_To > m_DataSet->GetRowCount())
        return refuse(QStringLiteral("The rows to search are not in the data."));
    QElapsedTimer timer;
    timer.start();
    try {
        if (!matchAll(rows, attributeMap, progress, results))
            return false;
    } catch (const std::bad_alloc&) {
        return refuse(QString::fromLatin1(MemoryLimitError().what()));
    }
    qCDebug(lcMatcher) << "Time taken:" << timer.elapsed() << "No Templates:" << results.size();
    return true;
}

bool TemplateMatcher::matchAll(RowSpan rows, const QHash<QString, int>& attributeMap,
                               Progress& progress, Results& results)
{
    const auto& collections = m_Pattern->GetSignalCollections();
    for (int c = 0; c < collections.size(); ++c)
        results.emplace_back(size_t(rows.GetLength()));
    m_Done = 0;
    SignalGroups groups(*m_Pattern, attributeMap);
    for (auto group = groups.Take(); !group.m_Members.empty(); group = groups.Take()) {
        if (!matchGroup(rows, group, progress, results))
            return false;
    }
    for (int c = 0; c < collections.size(); ++c) {
        const auto count = float(std::max(collections[c]->GetSignals().size(), 1));
        auto& sums = results[size_t(c)];
        std::for_each(sums.begin(), sums.end(), [=](float& value) { value /= count; });
    }
    return true;
}

bool TemplateMatcher::matchGroup(RowSpan rows, const SignalGroups::Group& group, Progress& progress,
                                 Results& results)
{
    const auto fitting = fittingOf(group, m_DataSet, rows);
    m_Done += int(group.m_Members.size() - fitting.size());
    if (fitting.empty())
        return true;
    if (getMeasureName(m_Measure).isEmpty())
        return refuse(QStringLiteral("There is no such measure."));
    const ConstSpan<double> column = m_DataSet->GetColumn(group.m_Attribute);
    AttributeSearch search(column.Part(rows.m_From, rows.m_To), fitting);
    for (const auto& [collection, signal] : fitting) {
        if (m_Measure == MEASURE_CORRELATION)
            search.AddCorrelation(*signal, results[collection]);
        else if (m_Measure == MEASURE_NORMALIZED_CORRELATION)
            search.AddNormalizedCorrelation(*signal, results[collection]);
        else
            search.AddExactCorrelation(*signal, results[collection]);
        progress.SetValue(++m_Done);
        if (isStopped(progress))
            return false;
    }
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
    if (!canMatch(dataSet, signal, attribute, {startIndex, endIndex}))
        return;
    RowWindow rows(dataSet->GetColumn(attribute).Part(startIndex, endIndex));
    float* middles = results + (signal->GetLength() - 1) / 2;
    CorrelateWithSignal(rows, *signal, [=](int first, const float* confidences, int count) {
        std::copy_n(confidences, count, middles + first);
    });
}

void TemplateMatcher::exactCorrelation(const DataSet* dataSet,
                                       const SignalTemplateDataObject* signal, int attribute,
                                       float* results, int startIndex, int endIndex)
{
    if (!canMatch(dataSet, signal, attribute, {startIndex, endIndex}))
        return;
    RowWindow rows(dataSet->GetColumn(attribute).Part(startIndex, endIndex));
    float* middles = results + (signal->GetLength() - 1) / 2;
    CorrelatePearson(rows, signal->GetSignal(), signal->GetLength(),
                     [=](int first, const double* confidences, int count) {
                         std::copy_n(confidences, count, middles + first);
                     });
}

void TemplateMatcher::directCorrelation(const DataSet* dataSet,
                                        const SignalTemplateDataObject* signal, int attribute,
                                        float* results, int startIndex, int endIndex)
{
    if (!canMatch(dataSet, signal, attribute, {startIndex, endIndex}))
        return;
    RowWindow rows(dataSet->GetColumn(attribute).Part(startIndex, endIndex));
    CorrelateDirectly(rows.Get(0, rows.GetLength()), rows.GetLength(), *signal, results);
}

void TemplateMatcher::normalizedCorrelation(const DataSet* dataSet,
                                            const SignalTemplateDataObject* signal, int attribute,
                                            float* results, int startIndex, int endIndex)
{
    if (!canMatch(dataSet, signal, attribute, {startIndex, endIndex}))
        return;
    const int length = dataSet->GetRowCount();
    RowWindow rows(dataSet->GetColumn(attribute));
    const double* column = rows.Get(0, length);
    CorrelateNormalized(column + startIndex, endIndex - startIndex, *signal, {column, length},
                        results);
}

void TemplateMatcher::normalizedRunningCorrelation(const DataSet* dataSet,
                                                   const SignalTemplateDataObject* signal,
                                                   int attribute, float* results, int startIndex,
                                                   int endIndex)
{
    if (!canMatch(dataSet, signal, attribute, {startIndex, endIndex}))
        return;
    RowWindow rows(dataSet->GetColumn(attribute).Part(startIndex, endIndex));
    CorrelateNormalizedByWindow(rows.Get(0, rows.GetLength()), rows.GetLength(), *signal, results);
}
