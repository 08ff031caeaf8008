#pragma once

#include <QString>

class CutCollection;
class DataSet;

/// Writes all segments as text, for a look at them while the program is being worked on. Both
/// operations return false with GetError after a failure.
class CutCollectionWriter
{
public:
    explicit CutCollectionWriter(const QString& path) : m_FileName(path) {}

    void SetDataSet(const DataSet* dataSet) { m_DataSet = dataSet; }

    /// The path is a directory: per segment a file "cut0.txt", "cut1.txt", ... with its data rows.
    bool WriteData(const CutCollection* cuts);
    /// The path is a file: per segment a line of first row, end row and state.
    bool WriteSegments(const CutCollection* cuts);

    QString GetError() const { return m_Error; }

private:
    bool isReady(const CutCollection* cuts);
    bool report(bool isWritten);

    QString m_FileName;
    QString m_Error;
    const DataSet* m_DataSet = nullptr;
};
