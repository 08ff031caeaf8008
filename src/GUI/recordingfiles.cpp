#include "recordingfiles.h"

#include "askuser.h"
#include "dataexport.h"
#include "groundtruithbehaviorcollection.h"
#include "groundtruithinstance.h"
#include "labelwriter.h"
#include "liverecording.h"
#include "readlabels.h"
#include "runexport.h"
#include "usererror.h"
#include "waitcursor.h"
#include <QFileDialog>

void RecordingFiles::SaveDataFile(LiveRecording* recording)
{
    if (!recording)
        return;
    const QString path = AskSavePath(m_Window, tr("Export Data"), tr("CSV (*.csv)"));
    if (path.isEmpty())
        return;
    ExportDataFile(m_Window, recording->GetDataSet(), path);
}

void RecordingFiles::ExportProject(LiveRecording* recording)
{
    if (!recording)
        return;
    const QString path = AskSavePath(m_Window, tr("Export Labels"), tr("Traceholm (*.thm)"));
    if (path.isEmpty())
        return;
    writeLabels(path, *recording, [=](LabelWriter& writer) {
        return writer.WriteProject(recording->GetLabelCollection());
    });
}

void RecordingFiles::ExportSummaryLabels(LiveRecording* recording)
{
    if (!recording)
        return;
    const QStringList formats{tr("Write Label Collection (Summary)"),
                              tr("Write Label Collection (Data - Seperate Files)"),
                              tr("Write Label Collection (Data - Combined)"),
                              tr("Write Data Aligned With Behaviors")};
    switch (AskChoice(m_Window, tr("Export Labels"), tr("Format:"), formats)) {
    case 0:
        exportSummary(*recording);
        break;
    case 1:
        exportToFolder(*recording, true);
        break;
    case 2:
        exportToFolder(*recording, false);
        break;
    case 3:
        exportAligned(*recording);
        break;
    default:
        break;
    }
}

void RecordingFiles::exportSummary(LiveRecording& recording)
{
    const QString path = AskSavePath(m_Window, tr("Export Labels"), tr("CSV (*.csv)"));
    if (path.isEmpty())
        return;
    const int attribute = AskAttribute(m_Window, *recording.GetDataSet());
    if (attribute == -1)
        return;
    writeLabels(path, recording, [&](LabelWriter& writer) {
        return writer.WriteSummary(recording.GetLabelCollection(), attribute);
    });
}

void RecordingFiles::exportToFolder(LiveRecording& recording, bool separate)
{
    const QString folder = QFileDialog::getExistingDirectory(
        m_Window, tr("Export Labels Directory"), QStringLiteral("/home"));
    if (folder.isEmpty())
        return;
    const LabelCollection* labels = recording.GetLabelCollection();
    writeLabels(folder, recording, [=](LabelWriter& writer) {
        return separate ? writer.WriteSeparateFiles(labels) : writer.WriteCombined(labels);
    });
}

void RecordingFiles::exportAligned(LiveRecording& recording)
{
    const QString path = AskSavePath(m_Window, tr("Export Data"), tr("CSV (*.csv)"));
    if (path.isEmpty())
        return;
    writeLabels(path, recording, [&](LabelWriter& writer) {
        return writer.WriteAligned(recording.GetLabelCollection());
    });
}

void RecordingFiles::writeLabels(const QString& path, LiveRecording& recording,
                                 const std::function<bool(LabelWriter&)>& write)
{
    LabelWriter writer(path);
    writer.SetDataSet(recording.GetDataSet());
    const ExportResult result = RunExport(m_Window, [&](Progress* progress) {
        writer.SetProgress(progress);
        return write(writer);
    });
    if (result == EXPORT_FAILED)
        ShowUserError(m_Window, tr("Error writing label collection"),
                      tr("Error: ") + writer.GetError());
}

void RecordingFiles::ImportLabels(LiveRecording* recording)
{
    const auto labels = recording
                            ? ReadLabels(m_Window, recording->GetDataSet(), tr("Traceholm (*.thm)"))
                            : nullptr;
    if (!labels)
        return;
    const WaitCursor wait;
    std::vector<LabelledSpans> groups;
    for (const QString& name : labels->Names()) {
        groups.push_back({name, {}});
        for (const GroundTruithInstance* instance : *labels->Get(name))
            groups.back().m_Spans.push_back({instance->GetFrom(), instance->GetTo()});
    }
    const LiveRecording::Hold hold(recording);
    recording->GetLabelling().Import(groups);
    recording->TellLabels();
}
