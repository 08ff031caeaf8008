#include "pipextractor.h"

#include "dataset.h"
#include "pipevaluator.h"
#include <QLoggingCategory>
#include <QStringList>
#include <algorithm>
#include <tuple>

Q_LOGGING_CATEGORY(lcImportantPoints, "skerrymoor.cuts.importantpoints", QtWarningMsg)

namespace
{

// Of equal distances the later segment is split first.
bool isSplitLater(const PIPSegment& a, const PIPSegment& b)
{
    return std::tie(a.m_BestDistance, a.m_Start) < std::tie(b.m_BestDistance, b.m_Start);
}

bool isInFront(const PIPSegment& a, const PIPSegment& b)
{
    return std::tie(a.m_Start, a.m_End) < std::tie(b.m_Start, b.m_End);
}

} // namespace

QString PIPExtractor::GetMeasureName(int measure)
{
    static const QStringList names{QStringLiteral("Euclidean Distance"),
                                   QStringLiteral("Vertical Distance"),
                                   QStringLiteral("Perpendicular Distance")};
    return names.value(measure, QStringLiteral("Error"));
}

QString PIPExtractor::GetParameterName(int option)
{
    static const QStringList names{QStringLiteral("Number Partitions"),
                                   QStringLiteral("Minimum Distance"),
                                   QStringLiteral("Partition and Distance")};
    return names.value(option, QStringLiteral("Error"));
}

bool PIPExtractor::extract(int attribute, int partitions, double minimumDistance, int stopping,
                           Progress& progress)
{
    m_Segments.clear();
    if (!m_DataSet || m_DataSet->GetRowCount() == 0 || attribute < 0 ||
        attribute >= m_DataSet->GetAttributeCount())
        return true;
    PIPEvaluator evaluator(m_DataSet->GetColumn(attribute), m_Measure);
    PIPSegment whole;
    whole.m_End = evaluator.GetRowCount() - 1;
    evaluator.Evaluate(whole);
    m_Segments.push_back(whole);

    const auto option = ParameterOptions(stopping);
    // Nobody knows how many splits a distance takes.
    progress.SetRange(0, option == MINIMUM_DISTANCE ? 0 : partitions + 1);
    int iterations = 0;
    double distance = PIPSegment::NoDistance;
    do {
        distance = m_Segments.front().m_BestDistance;
        if (distance == PIPSegment::NoDistance ||
            (distance < minimumDistance && option == NUMBER_PARTITIONS))
            break;
        splitBest(evaluator);
        progress.SetValue(++iterations);
        if (progress.IsStopRequested()) {
            m_Segments.clear();
            return false;
        }
    } while (parameterConditionMeet(option, distance, iterations, partitions, minimumDistance));
    std::sort(m_Segments.begin(), m_Segments.end(), isInFront);
    return true;
}

void PIPExtractor::splitBest(PIPEvaluator& evaluator)
{
    std::pop_heap(m_Segments.begin(), m_Segments.end(), isSplitLater);
    PIPSegment left = m_Segments.back();
    PIPSegment right = left;
    left.m_End = right.m_Start = left.m_BestIndex;
    evaluator.MaskAround(left.m_BestIndex);
    evaluator.Evaluate(left);
    evaluator.Evaluate(right);

    m_Segments.back() = left;
    std::push_heap(m_Segments.begin(), m_Segments.end(), isSplitLater);
    m_Segments.push_back(right);
    std::push_heap(m_Segments.begin(), m_Segments.end(), isSplitLater);
}

bool PIPExtractor::parameterConditionMeet(ParameterOptions option, double distance, int iterations,
                                          int partitions, double minimumDistance) const
{
    switch (option) {
    case NUMBER_PARTITIONS:
        qCDebug(lcImportantPoints, "%d %d", iterations, partitions);
        return iterations <= partitions;
    case MINIMUM_DISTANCE:
        return distance >= minimumDistance;
    case PARTITION_AND_DISTANCE:
        return iterations <= partitions && distance >= minimumDistance;
    }
    return false;
}
