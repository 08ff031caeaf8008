#include "labelwriter.h"

#include "cutsegment.h"
#include "dataset.h"
#include "labelcollection.h"
#include "rangestatistics.h"
#include "rowprogress.h"
#include "rowspan.h"
#include "rowtext.h"
#include "textoutput.h"
#include <QDir>
#include <QMap>
#include <algorithm>

namespace
{

using Segments = std::vector<const CutSegment*>;

Segments segmentsOf(const BehaviorLabel& label)
{
    Segments segments;
    for (int i = 0; i < label.GetInstanceCount(); ++i)
        segments.push_back(label.GetInstance(i)->GetSegment());
    return segments;
}

// The segments of all behaviours of one name.
struct NamedSegments {
    QString m_Name;
    Segments m_Segments;
};

// In the order in which the names first occur.
std::vector<NamedSegments> joinByName(const LabelCollection& labels)
{
    std::vector<NamedSegments> groups;
    QHash<QString, size_t> positions;
    for (int i = 0; i < labels.GetLabelCount(); ++i) {
        const BehaviorLabel& label = *labels.GetLabel(i);
        if (!positions.contains(label.GetName())) {
            positions.insert(label.GetName(), groups.size());
            groups.push_back({label.GetName(), {}});
        }
        Segments& joined = groups[positions.value(label.GetName())].m_Segments;
        const Segments own = segmentsOf(label);
        joined.insert(joined.end(), own.begin(), own.end());
    }
    return groups;
}

// A file of that name stands in the directory it is made for and nowhere else.
bool isFileName(const QString& name)
{
    return !name.isEmpty() && name != QLatin1String(".") && name != QLatin1String("..") &&
           !name.contains(QLatin1Char('/')) && !name.contains(QDir::separator()) &&
           !name.contains(QChar(QChar::Null));
}

// The label of a row, of the last one for rows beyond the data.
QString rowLabel(const DataSet& data, int row)
{
    const int last = data.GetRowCount() - 1;
    return last < 0 ? QString() : data.GetRowLabel(std::clamp(row, 0, last));
}

// The rows of a segment as far as there are any.
RowSpan rowsOf(const DataSet& data, const CutSegment& segment)
{
    return {std::max(segment.GetFrom(), 0), std::min(segment.GetTo(), data.GetRowCount())};
}

qint64 countRows(const DataSet& data, const LabelCollection& labels)
{
    qint64 rows = 0;
    for (int i = 0; i < labels.GetLabelCount(); ++i) {
        for (const CutSegment* segment : segmentsOf(*labels.GetLabel(i)))
            rows += std::max(rowsOf(data, *segment).GetLength(), 0);
    }
    return rows;
}

int countInstances(const LabelCollection& labels)
{
    int instances = 0;
    for (int i = 0; i < labels.GetLabelCount(); ++i)
        instances += labels.GetLabel(i)->GetInstanceCount();
    return instances;
}

// Writes a file by fill(TextOutput&), which ends early when the progress asks for that.
template <typename Fill>
bool writeFile(const QString& path, const RowProgress& progress, Fill&& fill)
{
    return WriteTextFile(path, [&](TextOutput& out) {
        fill(out);
        if (progress.IsStopped())
            out.Cancel();
    });
}

bool writeDataFile(const QString& path, const DataSet& data, const Segments& segments,
                   RowProgress& progress)
{
    return writeFile(path, progress, [&](TextOutput& out) {
        out << "Time ";
        WriteAttributeNames(out, data, '\t');
        out << "\t\n";
        for (const CutSegment* segment : segments) {
            const RowSpan rows = rowsOf(data, *segment);
            for (int row = rows.m_From; row < rows.m_To && progress.Advance(); ++row) {
                WriteLabelledRow(out, data, row, '\t');
                out << "\t\n";
            }
        }
    });
}

void writeCounts(TextOutput& out, const QString& name, const Segments& segments)
{
    qint64 duration = 0;
    QMap<int, int> countsByLength;
    for (const CutSegment* segment : segments) {
        duration += segment->GetLength();
        ++countsByLength[segment->GetLength()];
    }
    out << "Name:," << name << "\nNumber instances:," << int(segments.size())
        << "\nTotal Duration (Data Rows):," << duration << '\n';
    for (auto it = countsByLength.cbegin(); it != countsByLength.cend(); ++it)
        out << "Data length:," << it.key() << ", Number Instances:, " << it.value() << '\n';
}

void writeStatistics(TextOutput& out, const DataSet& data, int attribute, const CutSegment& segment)
{
    const int from = segment.GetFrom();
    const int to = segment.GetTo();
    const auto statistics = ComputeRangeStatistics(data, attribute, from, to);
    out << rowLabel(data, from) << ',' << rowLabel(data, to) << ',' << from << ',' << to << ','
        << segment.GetLength();
    const double numbers[] = {statistics.m_Maximum, statistics.m_Minimum, statistics.m_Mean,
                              statistics.m_StandardDeviation};
    out.Numbers(numbers, 4, ',') << '\n';
}

void writeSummary(TextOutput& out, const DataSet& data, int attribute, const BehaviorLabel& label,
                  RowProgress& progress)
{
    const Segments segments = segmentsOf(label);
    writeCounts(out, label.GetName(), segments);
    const QString name = data.GetAttributeName(attribute);
    out << "Time From, Time To, Data Row From, Data Row To, Data Length, Max " << name << ", Min "
        << name << ", Mean " << name << ", Standard Deviation " << name << '\n';
    for (const CutSegment* segment : segments) {
        if (!progress.Advance(std::max(rowsOf(data, *segment).GetLength(), 0)))
            return;
        writeStatistics(out, data, attribute, *segment);
    }
    out << "\n \n \n";
}

// The index of the behaviour on every row.
std::vector<int> alignBehaviors(const DataSet& data, const LabelCollection& labels)
{
    std::vector<int> behaviors(size_t(data.GetRowCount()), -1);
    for (int i = 0; i < labels.GetLabelCount(); ++i) {
        for (const CutSegment* segment : segmentsOf(*labels.GetLabel(i))) {
            const RowSpan rows = rowsOf(data, *segment);
            for (int row = rows.m_From; row < rows.m_To; ++row)
                behaviors[size_t(row)] = i;
        }
    }
    return behaviors;
}

} // namespace

bool LabelWriter::isReady(const void* labels)
{
    m_Error =
        labels && m_DataSet ? QString() : QStringLiteral("Label collection or data set is invalid");
    return m_Error.isEmpty();
}

bool LabelWriter::report(bool isWritten, const RowProgress& progress)
{
    if (!isWritten)
        m_Error = progress.IsStopped() ? QStringLiteral("Writing was stopped")
                                       : QStringLiteral("Unable to open file");
    return isWritten;
}

// Empty for a name that is none of a file.
QString LabelWriter::pathInDirectory(const QString& name) const
{
    if (m_FileName.isEmpty() || !isFileName(name))
        return QString();
    return m_FileName + QLatin1Char('/') + name;
}

bool LabelWriter::WriteProject(const LabelCollection* labels)
{
    if (!isReady(labels))
        return false;
    const int lastRow = m_DataSet->GetRowCount() - 1;
    RowProgress progress(*m_Progress, countInstances(*labels));
    const auto fill = [&](TextOutput& out) {
        for (int i = 0; i < labels->GetLabelCount(); ++i) {
            const BehaviorLabel& label = *labels->GetLabel(i);
            // Names are written bare: a name with a comma shifts the fields behind it, and its
            // line is passed over when the project is read.
            for (const CutSegment* segment : segmentsOf(label)) {
                if (!progress.Advance())
                    return;
                out << label.GetName() << ',' << segment->GetFrom() << ','
                    << std::min(segment->GetTo(), lastRow) << '\n';
            }
        }
    };
    return report(writeFile(m_FileName, progress, fill), progress);
}

bool LabelWriter::WriteSummary(const LabelCollection* labels, int attribute)
{
    if (!isReady(labels))
        return false;
    if (attribute < 0 || attribute >= m_DataSet->GetAttributeNames().size()) {
        m_Error = QStringLiteral("No attribute to export is selected");
        return false;
    }
    RowProgress progress(*m_Progress, countRows(*m_DataSet, *labels));
    const auto fill = [&](TextOutput& out) {
        for (int i = 0; i < labels->GetLabelCount() && !progress.IsStopped(); ++i)
            writeSummary(out, *m_DataSet, attribute, *labels->GetLabel(i), progress);
    };
    return report(writeFile(m_FileName, progress, fill), progress);
}

bool LabelWriter::WriteCombined(const LabelCollection* labels)
{
    if (!isReady(labels))
        return false;
    const auto groups = joinByName(*labels);
    RowProgress progress(*m_Progress, countRows(*m_DataSet, *labels));
    const auto write = [&](const NamedSegments& group) {
        const QString path = pathInDirectory(group.m_Name);
        return !path.isEmpty() &&
               writeDataFile(path + QStringLiteral(".txt"), *m_DataSet, group.m_Segments, progress);
    };
    return report(std::all_of(groups.begin(), groups.end(), write), progress);
}

bool LabelWriter::WriteSeparateFiles(const LabelCollection* labels)
{
    if (!isReady(labels))
        return false;
    const auto groups = joinByName(*labels);
    RowProgress progress(*m_Progress, countRows(*m_DataSet, *labels));
    const auto write = [&](const NamedSegments& group) {
        const QString directory = pathInDirectory(group.m_Name);
        if (directory.isEmpty() || !QDir().mkpath(directory))
            return false;
        for (size_t i = 0; i < group.m_Segments.size(); ++i) {
            const QString file = QStringLiteral("/cut%1.txt").arg(i);
            if (!writeDataFile(directory + file, *m_DataSet, {group.m_Segments[i]}, progress))
                return false;
        }
        return true;
    };
    return report(std::all_of(groups.begin(), groups.end(), write), progress);
}

bool LabelWriter::WriteAligned(const LabelCollection* labels)
{
    if (!isReady(labels))
        return false;
    const std::vector<int> behaviors = alignBehaviors(*m_DataSet, *labels);
    RowProgress progress(*m_Progress, m_DataSet->GetRowCount());
    const auto fill = [&](TextOutput& out) {
        out << "Time";
        WriteAttributeNames(out, *m_DataSet, ',');
        out << ",Behavior\n";
        for (int row = 0; row < m_DataSet->GetRowCount() && progress.Advance(); ++row) {
            WriteLabelledRow(out, *m_DataSet, row, ',');
            out << ',' << behaviors[size_t(row)] << '\n';
        }
    };
    return report(writeFile(m_FileName, progress, fill), progress);
}

bool LabelWriter::WriteLabel(const BehaviorLabel* label)
{
    if (!isReady(label))
        return false;
    RowProgress progress(*m_Progress, label->GetInstanceCount());
    const auto fill = [&](TextOutput& out) {
        for (const CutSegment* segment : segmentsOf(*label)) {
            if (!progress.Advance())
                return;
            out << rowLabel(*m_DataSet, segment->GetFrom()) << '\t'
                << rowLabel(*m_DataSet, segment->GetTo()) << '\t' << segment->GetLength() << '\t'
                << label->GetName() << '\n';
        }
    };
    return report(writeFile(m_FileName, progress, fill), progress);
}
