#pragma once

#include "patternsdataobject.h"
#include <QPair>
#include <QVector>
#include <memory>

class DataSet;

/// What a user asks for when a template is made of rows of a recording.
struct PatternRequest {
    int m_CollectionId = -1;
    QString m_Name;
    QString m_Desc;
    /// Rows from m_From up to, but without, m_To.
    int m_From = 0;
    int m_To = 0;
    QVector<int> m_Attributes;
    /// Up and down, one signal collection each.
    QList<QPair<int, int>> m_Factors;
    /// For SmoothSignal; 1 and less leave the signals raw.
    int m_SmoothingWindow = 0;
    /// Smooths by SmoothSignalCentred instead.
    bool m_IsCentred = false;
};

/// Whether the template would be larger than MaxSignalLength, as a whole or on the way to it.
bool IsPatternTooLong(const PatternRequest& request);

/// Why nothing could be found with a template of these rows, as a sentence: an attribute has
/// missing or infinite values in them, or the same value in all. Empty when there is no such
/// reason. The rows and attributes have to exist.
QString FindRowFault(const DataSet& dataSet, const PatternRequest& request);
/// The same for the signals of a template, after smoothing and resampling.
QString FindPatternFault(const PatternsDataObject& pattern);

/// The template, not stored: for every factor a signal collection, with a signal of every
/// attribute in it. The frequency factor up / down is computed in single precision. Null when
/// it would be too long or the rows or attributes don't exist.
std::unique_ptr<PatternsDataObject> MakePattern(DataSet* dataSet, const PatternRequest& request);
