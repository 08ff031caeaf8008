#pragma once

#include "dataset.h"
#include <QTemporaryFile>

/// A delimited text of a made-up recording, numbers of six significant digits, in a temporary
/// file.
class RecordingFile
{
public:
    RecordingFile(int rows, int columns);
    QString Path() const { return m_File.fileName(); }

private:
    QTemporaryFile m_File;
};

/// The same recording in memory.
std::unique_ptr<DataSet> MakeRecording(int rows, int columns);
