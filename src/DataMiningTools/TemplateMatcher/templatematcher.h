#pragma once

#include "cutsegment.h"
#include "progress.h"
#include "rowspan.h"
#include "signalgroups.h"
#include <QHash>
#include <QString>
#include <vector>

class CutCollection;
class DataSet;
class PatternsDataObject;
class SignalTemplateDataObject;

/// The confidence of a row that lies in a segment left out of a search: no data. Consumers test
/// for exactly this value.
constexpr float ExclusionMark = -200000.0F;

/// Slides the signals of a template over a data set and tells, for each of the template's
/// frequency factors and every row, how sure it is that the template lies around that row.
///
/// A window's result stands at its middle, (length - 1) / 2 rows behind its first. A value of the
/// data that is no finite number counts as the last one before it.
class TemplateMatcher
{
public:
    enum Measure {
        MEASURE_CORRELATION = 0,            ///< sum of products, not scaled
        MEASURE_NORMALIZED_CORRELATION = 1, ///< mostly -1 to 1, a little beyond at times
        MEASURE_EXACT_CORRELATION = 2       ///< Pearson's, -1 to 1
    };

    /// Borrows both. option is the caller's, the matcher only keeps it.
    TemplateMatcher(DataSet* dataSet, PatternsDataObject* pattern, int option, int measure);
    TemplateMatcher(const TemplateMatcher&) = delete;
    TemplateMatcher& operator=(const TemplateMatcher&) = delete;

    /// Matches rows start to end - 1. attributeMap gives the attribute for a signal's attribute
    /// name: attribute 0 for a name that is not in it; a signal whose attribute does not exist
    /// counts as one that matches nowhere, as does one longer than the range. Negative
    /// correlation counts as none. False, with a message and the earlier results whole, when data
    /// or template are missing, the range is not in the data, the measure is unknown or memory
    /// does not suffice.
    bool Convolve(int start, int end, const QHash<QString, int>& attributeMap);
    /// Matches all rows.
    bool Convolve(const QHash<QString, int>& attributeMap);
    /// Matches all rows, and marks those in segments of another state than state by
    /// ExclusionMark. The range of progress becomes the number of signals and segments; a request
    /// to stop is asked for behind each, and ends the search as a failure.
    bool Convolve(Progress& progress, const QHash<QString, int>& attributeMap, CutCollection* cuts,
                  CutSegment::SEGMENT_STATE state);

    /// One array per signal collection of the template, in its order, as long as the range. They
    /// belong to the matcher and last until a Convolve goes well.
    float** getResults() { return m_ResultPointers.data(); }
    QString getErrorMessage() const { return m_ErrorMessage; }
    int GetOption() const { return m_Option; }
    /// Empty for a measure that does not exist.
    static QString getMeasureName(int measure);

    /// Brings all values except ExclusionMark to 0 to 1 by their minimum and maximum, which are
    /// returned. When the very first value is the mark, the minimum stays at it, and all other
    /// values end near 1: who searches calls it from the first searched row on.
    static void normalizeResults(float** results, int collections, int length, float& min,
                                 float& max);
    /// Brings min to 0 and max to 1, without exception.
    static void normalizeArray(float* values, int length, float min, float max);
    static void normalizeArrays(float** values, int count, int length, float min, float max);

    /// The correlation of data with a filter not longer than it, in one transform of all data:
    /// results[s + (filterLength - 1) / 2] becomes the sum of data[s + j] * filter[j]. Other
    /// results stay as they are. See CorrelateWhole.
    static void convolveFast(const double* data, int dataLength, const double* filter,
                             int filterLength, float* results);

    /// All of these take rows startIndex to endIndex - 1, which exist, and a signal that is not
    /// longer; otherwise they do nothing. Results are counted from startIndex.
    ///
    /// The correlation of the signal, centred by its stored mean, with the data without its
    /// running mean, over the stored deviation and the running root mean square. Where that is 0
    /// the correlation is only divided by the length. See RunningNormalization. Results of no
    /// window stay as they are.
    static void fastNormalizedRunningCorrelation(const DataSet* dataSet,
                                                 const SignalTemplateDataObject* signal,
                                                 int attribute, float* results, int startIndex,
                                                 int endIndex);
    /// Pearson's correlation of the signal with each window, by the window's own mean and
    /// deviation: -1 to 1, and 0 where window or signal are flat. Results of no window stay as
    /// they are. See CorrelatePearson.
    static void exactCorrelation(const DataSet* dataSet, const SignalTemplateDataObject* signal,
                                 int attribute, float* results, int startIndex, int endIndex);
    /// The direct forms write consecutive results, the first window's to results[0]. This one
    /// adds the sum of products to results.
    static void directCorrelation(const DataSet* dataSet, const SignalTemplateDataObject* signal,
                                  int attribute, float* results, int startIndex, int endIndex);
    /// Normalised by the mean and deviation of all rows of the attribute.
    static void normalizedCorrelation(const DataSet* dataSet,
                                      const SignalTemplateDataObject* signal, int attribute,
                                      float* results, int startIndex, int endIndex);
    /// Normalised by the mean and deviation of each window.
    static void normalizedRunningCorrelation(const DataSet* dataSet,
                                             const SignalTemplateDataObject* signal, int attribute,
                                             float* results, int startIndex, int endIndex);

private:
    using Results = std::vector<std::vector<float>>;

    bool match(RowSpan rows, const QHash<QString, int>& attributeMap, Progress& progress,
               Results& results);
    bool matchAll(RowSpan rows, const QHash<QString, int>& attributeMap, Progress& progress,
                  Results& results);
    bool matchGroup(RowSpan rows, const SignalGroups::Group& group, Progress& progress,
                    Results& results);
    bool markOthers(const CutCollection& cuts, CutSegment::SEGMENT_STATE state, Progress& progress,
                    Results& results);
    bool refuse(const QString& message);
    bool isStopped(const Progress& progress);
    void take(Results results);

    DataSet* m_DataSet;
    PatternsDataObject* m_Pattern;
    Results m_Results;
    std::vector<float*> m_ResultPointers;
    int m_Option;
    int m_Measure;
    // Signals and segments that are through.
    int m_Done = 0;
    QString m_ErrorMessage = QStringLiteral("N/A");
};
