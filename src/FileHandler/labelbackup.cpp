#include "labelbackup.h"

#include "cutsegment.h"
#include "labelcollection.h"
#include "labelwriter.h"
#include <QDateTime>
#include <QDir>

namespace
{

constexpr int interval = 60000;
constexpr int mostFiles = 20;
const QString nameFilter = QStringLiteral("labels-*.thm");

// Differs when the labels do; 0 when there are none.
uint labelState(const LabelCollection& labels)
{
    uint state = 0;
    for (int i = 0; i < labels.GetLabelCount(); ++i) {
        const BehaviorLabel& label = *labels.GetLabel(i);
        const uint name = qHash(label.GetName(), uint(i) + 1);
        for (int j = 0; j < label.GetInstanceCount(); ++j) {
            const CutSegment* segment = label.GetInstance(j)->GetSegment();
            state = qHash(qMakePair(segment->GetFrom(), segment->GetTo()), state ^ name);
        }
    }
    return state;
}

} // namespace

LabelBackup::LabelBackup(const QString& folder, QObject* parent) : QObject(parent), m_Folder(folder)
{
    connect(&m_Timer, &QTimer::timeout, this, &LabelBackup::Write);
    m_Timer.start(interval);
}

void LabelBackup::Watch(const DataSet* dataSet, const LabelCollection* labels)
{
    Write();
    m_DataSet = dataSet;
    m_Labels = labels;
    m_Path.clear();
    m_WrittenState = 0;
}

void LabelBackup::Write()
{
    if (!m_DataSet || !m_Labels)
        return;
    const uint state = labelState(*m_Labels);
    if (state == 0 || state == m_WrittenState)
        return;
    LabelWriter writer(path());
    writer.SetDataSet(m_DataSet);
    if (writer.WriteProject(m_Labels))
        m_WrittenState = state;
}

QString LabelBackup::path()
{
    if (m_Path.isEmpty()) {
        QDir().mkpath(m_Folder);
        removeOldest();
        // Never over the file of a recording that was left in the same millisecond.
        QDateTime time = QDateTime::currentDateTime();
        do {
            m_Path =
                m_Folder + time.toString(QStringLiteral("'/labels-'yyyy-MM-dd-hhmmss-zzz'.thm'"));
            time = time.addMSecs(1);
        } while (QFile::exists(m_Path));
    }
    return m_Path;
}

void LabelBackup::removeOldest() const
{
    QDir folder(m_Folder);
    const QStringList files = folder.entryList({nameFilter}, QDir::Files, QDir::Name);
    for (int i = 0; i <= files.size() - mostFiles; ++i)
        folder.remove(files[i]);
}
