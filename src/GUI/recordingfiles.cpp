#include "recordingfiles.h"

#include "askattribute.h"
#include "askpath.h"
#include "dataexport.h"
#include "groundtruithbehaviorcollection.h"
#include "groundtruithinstance.h"
#include "groundtruithreader.h"
#include "labelsegment.h"
#include "labelwriter.h"
#include "recording.h"
#include "usererror.h"
#include "waitcursor.h"
#include <QFileDialog>
#include <QInputDialog>
#include <QLoggingCategory>

namespace
{
Q_LOGGING_CATEGORY(lcProject, "skerrymoor.project", QtWarningMsg)

LabelWriter makeWriter(const QString& path, Recording& recording)
{
    LabelWriter writer(path);
    writer.SetDataSet(recording.GetDataSet());
    return writer;
}

/// The segments cut for one name of a project file.
struct ImportedGroup {
    QString name;
    QList<CutSegment*> segments;
};

std::vector<ImportedGroup> cutSegments(GroundTruithBehaviorCollection& labels, CutCollection& cuts)
{
    std::vector<ImportedGroup> groups;
    for (const QString& name : labels.Names()) {
        groups.push_back({name, {}});
        for (const GroundTruithInstance* instance : *labels.Get(name)) {
            CutSegment* segment =
                cuts.InsertCut(instance->GetFrom(), instance->GetTo(), CutSegment::SEGMENT_CUT);
            if (segment)
                groups.back().segments.append(segment);
            else
                qCDebug(lcProject) << "Cant insert segment";
        }
    }
    return groups;
}

} // namespace

void RecordingFiles::SaveDataFile(Recording* recording)
{
    if (!recording)
        return;
    const QString path = AskSavePath(m_Window, tr("Export Data"), tr("CSV (*.csv)"));
    if (path.isEmpty())
        return;
    ExportDataFile(m_Window, recording->GetDataSet(), path);
}

void RecordingFiles::ExportProject(Recording* recording)
{
    if (!recording)
        return;
    const QString path = AskSavePath(m_Window, tr("Export Labels"), tr("Traceholm (*.thm)"));
    if (path.isEmpty())
        return;
    const WaitCursor wait;
    LabelWriter writer = makeWriter(path, *recording);
    showResult(writer, writer.WriteProject(recording->GetLabelCollection()));
}

void RecordingFiles::ExportSummaryLabels(Recording* recording)
{
    if (!recording)
        return;
    const QStringList formats{tr("Write Label Collection (Summary)"),
                              tr("Write Label Collection (Data - Seperate Files)"),
                              tr("Write Label Collection (Data - Combined)"),
                              tr("Write Data Aligned With Behaviors")};
    bool isChosen = false;
    const QString format = QInputDialog::getItem(m_Window, tr("Export Labels"), tr("Format:"),
                                                 formats, 0, false, &isChosen);
    if (!isChosen)
        return;
    switch (formats.indexOf(format)) {
    case 0:
        exportSummary(*recording);
        break;
    case 1:
        exportToFolder(*recording, true);
        break;
    case 2:
        exportToFolder(*recording, false);
        break;
    default:
        exportAligned(*recording);
    }
}

void RecordingFiles::exportSummary(Recording& recording)
{
    const QString path = AskSavePath(m_Window, tr("Export Labels"), tr("CSV (*.csv)"));
    if (path.isEmpty())
        return;
    const int attribute = AskAttribute(m_Window, *recording.GetDataSet());
    if (attribute == -1)
        return;
    const WaitCursor wait;
    LabelWriter writer = makeWriter(path, recording);
    showResult(writer, writer.WriteSummary(recording.GetLabelCollection(), attribute));
}

void RecordingFiles::exportToFolder(Recording& recording, bool separate)
{
    const QString folder = QFileDialog::getExistingDirectory(
        m_Window, tr("Export Labels Directory"), QStringLiteral("/home"));
    if (folder.isEmpty())
        return;
    const WaitCursor wait;
    LabelWriter writer = makeWriter(folder, recording);
    showResult(writer, separate ? writer.WriteSeparateFiles(recording.GetLabelCollection())
                                : writer.WriteCombined(recording.GetLabelCollection()));
}

void RecordingFiles::exportAligned(Recording& recording)
{
    const QString path = AskSavePath(m_Window, tr("Export Data"), tr("CSV (*.csv)"));
    if (path.isEmpty())
        return;
    const WaitCursor wait;
    LabelWriter writer = makeWriter(path, recording);
    showResult(writer, writer.WriteAligned(recording.GetLabelCollection()));
}

void RecordingFiles::showResult(const LabelWriter& writer, bool isWritten)
{
    if (!isWritten)
        ShowUserError(m_Window, tr("Error writing label collection"),
                      tr("Error: ") + writer.GetError());
}

bool RecordingFiles::ImportLabels(Recording* recording,
                                  const std::function<BehaviorLabel*(const QString&)>& addGroup)
{
    const auto labels = readLabels(recording, tr("Traceholm (*.thm)"));
    if (!labels)
        return false;
    const WaitCursor wait;
    for (const ImportedGroup& group : cutSegments(*labels, *recording->GetCutCollection())) {
        BehaviorLabel* label = addGroup(group.name);
        if (!label) {
            qCDebug(lcProject) << "Behavior label null";
            continue;
        }
        for (CutSegment* segment : group.segments)
            LabelSegment(*label, segment);
    }
    return true;
}

std::unique_ptr<GroundTruithBehaviorCollection> RecordingFiles::ReadReference(Recording* recording)
{
    return readLabels(recording, tr("Text (*.txt)"));
}

std::unique_ptr<GroundTruithBehaviorCollection> RecordingFiles::readLabels(Recording* recording,
                                                                           const QString& filter)
{
    if (!recording)
        return nullptr;
    const QString path =
        QFileDialog::getOpenFileName(m_Window, tr("Open Ground Truith Data"), QString(), filter);
    if (path.isEmpty())
        return nullptr;
    const WaitCursor wait;
    GroundTruithReader reader(path);
    reader.SetDataSet(recording->GetDataSet());
    if (!reader.ReadFile()) {
        qCDebug(lcProject) << reader.GetError();
        return nullptr;
    }
    return reader.TakeCollection();
}
