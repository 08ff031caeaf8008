#pragma once

#include <QCoreApplication>
#include <functional>

class LabelWriter;
class LiveRecording;
class QWidget;

/// The entries of the File menu that write a recording's data and labels, or read labels back.
/// Each asks for a path; a cancelled question and a missing recording end it without a word.
class RecordingFiles
{
    Q_DECLARE_TR_FUNCTIONS(RecordingFiles)

public:
    /// window: the parent of dialogs and error boxes.
    explicit RecordingFiles(QWidget* window) : m_Window(window) {}

    /// Writes the data and tells the user how it went.
    void SaveDataFile(LiveRecording* recording);
    void ExportProject(LiveRecording* recording);
    /// Asks for one of four formats, then for what that needs.
    void ExportSummaryLabels(LiveRecording* recording);
    /// Cuts the segments of a project file into the recording and labels them: one new
    /// behaviour for each name.
    void ImportLabels(LiveRecording* recording);

private:
    void exportSummary(LiveRecording& recording);
    void exportToFolder(LiveRecording& recording, bool separate);
    void exportAligned(LiveRecording& recording);
    void writeLabels(const QString& path, LiveRecording& recording,
                     const std::function<bool(LabelWriter&)>& write);

    QWidget* m_Window;
};
