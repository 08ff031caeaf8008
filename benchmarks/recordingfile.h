#pragma once

#include "dataset.h"
#include <QTemporaryFile>

/// A delimited text of a made-up recording, numbers of six significant digits. It is a temporary
/// file, unless SKERRYMOOR_RECORDING names a path: it is made there if need be, and left there.
class RecordingFile
{
public:
    RecordingFile(int rows, int columns);
    QString Path() const { return m_File->fileName(); }

private:
    std::unique_ptr<QFile> m_File;
};

/// The same recording in memory.
std::unique_ptr<DataSet> MakeRecording(int rows, int columns);
