#pragma once

#include "progress.h"

class BehaviorLabel;
class DataSet;
class LabelCollection;
class RowProgress;

/// Writes labelled segments, and the data below them, as text. All files are UTF-8; R(i) stands
/// for the label of row i. Every operation returns false with GetError after a failure or a stop:
/// the file that could not be written is as it was, files of the same export written before it
/// stay.
class LabelWriter
{
public:
    /// path: a file, for WriteCombined and WriteSeparateFiles a directory.
    explicit LabelWriter(const QString& path) : m_FileName(path) {}

    void SetDataSet(const DataSet* dataSet) { m_DataSet = dataSet; }

    /// Tells it what is written, and stops when it asks for that. Not owned.
    void SetProgress(Progress* progress) { m_Progress = progress; }

    /// One line per instance: name, first and end row index, the latter not beyond the last row.
    bool WriteProject(const LabelCollection* labels);
    /// Per behaviour its counts and lengths and, per instance, the statistics of an attribute.
    bool WriteSummary(const LabelCollection* labels, int attribute);
    /// Per behaviour a file "name.txt" with the data rows of all instances. Behaviours of one name
    /// share the file.
    bool WriteCombined(const LabelCollection* labels);
    /// Per behaviour a subdirectory with a file "cut0.txt", "cut1.txt", ... per instance.
    /// Behaviours of one name share the directory, the second goes on counting.
    bool WriteSeparateFiles(const LabelCollection* labels);
    /// The whole data with a last column that tells the behaviour's index in the collection, -1
    /// for rows without. Where behaviours overlap, the later one counts.
    bool WriteAligned(const LabelCollection* labels);
    /// One line per instance: R(from), R(to), length, name.
    bool WriteLabel(const BehaviorLabel* label);

    QString GetError() const { return m_Error; }

private:
    bool isReady(const void* labels);
    bool report(bool isWritten, const RowProgress& progress);
    QString pathInDirectory(const QString& name) const;

    QString m_FileName;
    QString m_Error;
    const DataSet* m_DataSet = nullptr;
    Progress* m_Progress = &NoProgress::Shared();
};
