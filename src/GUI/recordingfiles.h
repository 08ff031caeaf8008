#pragma once

#include <QCoreApplication>
#include <functional>
#include <memory>

class BehaviorLabel;
class GroundTruithBehaviorCollection;
class LabelWriter;
class QWidget;
class Recording;

/// The entries of the File menu that write a recording's data and labels, or read labels back.
/// Each asks for a path; a cancelled question and a missing recording end it without a word.
class RecordingFiles
{
    Q_DECLARE_TR_FUNCTIONS(RecordingFiles)

public:
    /// window: the parent of dialogs and error boxes.
    explicit RecordingFiles(QWidget* window) : m_Window(window) {}

    /// Writes the data and tells the user how it went.
    void SaveDataFile(Recording* recording);
    void ExportProject(Recording* recording);
    /// Asks for one of four formats, then for what that needs.
    void ExportSummaryLabels(Recording* recording);
    /// Cuts the segments of a project file into the recording and labels them: one new
    /// behaviour for each name, made by addGroup. False when nothing was read.
    bool ImportLabels(Recording* recording,
                      const std::function<BehaviorLabel*(const QString&)>& addGroup);
    /// Reads a labelling to compare with; null when there is none.
    std::unique_ptr<GroundTruithBehaviorCollection> ReadReference(Recording* recording);

private:
    std::unique_ptr<GroundTruithBehaviorCollection> readLabels(Recording* recording,
                                                               const QString& filter);
    void exportSummary(Recording& recording);
    void exportToFolder(Recording& recording, bool separate);
    void exportAligned(Recording& recording);
    void showResult(const LabelWriter& writer, bool isWritten);

    QWidget* m_Window;
};
