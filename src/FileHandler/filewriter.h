#pragma once

#include <QString>

class DataSet;
class Progress;

/// Writes the data as comma-separated text: a line of attribute names, then a line of values per
/// row, without the rows' labels.
class FileWriter
{
public:
    /// Significant digits of the values.
    static constexpr int Digits = 14;

    explicit FileWriter(const QString& path);

    void SetDataSet(const DataSet* dataSet) { m_DataSet = dataSet; }
    /// Writes only rows from up to, but without, to, as far as there are any. All rows, as at
    /// first, when one of them is negative.
    void SetRange(int from, int to);

    /// Tells it the rows written, and stops when it asks for that. Not owned.
    void SetProgress(Progress* progress) { m_Progress = progress; }

    /// False with GetError after a failure or a stop; an old file is as it was then.
    bool Write();
    QString GetError() const { return m_Error; }

private:
    QString m_Error;
    QString m_FileName;
    const DataSet* m_DataSet = nullptr;
    Progress* m_Progress;
    int m_From = -1;
    int m_To = -1;
};
