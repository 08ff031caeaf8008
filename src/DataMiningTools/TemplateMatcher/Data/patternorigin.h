#pragma once

#include <QString>
#include <QStringList>

class DataSet;

/// Where the rows of a template were taken from.
struct PatternOrigin {
    /// Rows per second; 0 when it is not known.
    int m_SamplingRate = 0;
    /// The file name of the recording; empty when it is not known.
    QString m_Recording;
    /// Rows from m_From up to, but without, m_To; -1 when they are not known.
    int m_From = -1;
    int m_To = -1;

    bool IsKnown() const { return m_SamplingRate > 0 || !m_Recording.isEmpty() || m_From >= 0; }
};

/// What a template tells without its signals.
struct PatternSummary {
    QStringList m_Attributes;
    PatternOrigin m_Origin;
};

/// Of rows of a recording.
PatternOrigin MakeOrigin(const DataSet& dataSet, int from, int to);
/// Makes the table of origins where the database has none. False after a failure.
bool PrepareOriginTable();
/// Stores where a stored pattern comes from; the row goes with the pattern. False after a failure.
bool StorePatternOrigin(int patternId, const PatternOrigin& origin);
/// That of a stored pattern; nothing is known of one stored by an older version.
PatternOrigin ReadPatternOrigin(int patternId);
/// Origin and attributes of a stored pattern, in the order in which they were stored.
PatternSummary ReadPatternSummary(int patternId);

/// For the user, one line each: attributes, sampling rate, recording and rows. What is not known
/// is told as unknown.
QStringList DescribePattern(const PatternSummary& summary);
/// What keeps a template from fitting a recording as it is, one sentence each: another sampling
/// rate, or an attribute that the recording has not. Empty when nothing does.
QStringList FindMismatches(const PatternSummary& summary, const DataSet& dataSet);
/// The sentence about the sampling rates alone; empty when they are equal or one is not known.
QString FindRateMismatch(const PatternOrigin& origin, const DataSet& dataSet);
