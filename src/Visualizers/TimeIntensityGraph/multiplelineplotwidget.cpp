#include "multiplelineplotwidget.h"

#include "multiplelineplot.h"
#include <QColor>
#include <QSet>

MultipleLinePlotWidget::MultipleLinePlotWidget(QWidget* parent)
    : OverlaidLinesWidget(std::make_unique<MultipleLinePlot>(), true, parent)
{
}

MultipleLinePlot& MultipleLinePlotWidget::plot() const
{
    return static_cast<MultipleLinePlot&>(lines());
}

void MultipleLinePlotWidget::AddLine(DataSet* dataSet, CutSegment* segment, int attribute, int from,
                                     int to, const QColor& color)
{
    plot().AddLine(dataSet, segment, attribute, from, to, color);
}

void MultipleLinePlotWidget::AddLine(DataSet* dataSet, CutSegment* segment, int attribute,
                                     const QColor& color)
{
    plot().AddLine(dataSet, segment, attribute, color);
}

void MultipleLinePlotWidget::RemoveCutSegment(CutSegment* segment)
{
    if (plot().RemoveCutSegment(segment))
        markStale();
}

void MultipleLinePlotWidget::RemoveCutSegments(const QList<CutSegment*>& segments)
{
    const QSet<CutSegment*> removed(segments.begin(), segments.end());
    for (int line = GetLineCount() - 1; line >= 0; --line) {
        if (removed.contains(plot().GetCutSegment(line)))
            plot().RemoveLine(line);
    }
    markStale();
}

void MultipleLinePlotWidget::rejectLines(const std::vector<int>& lines)
{
    std::vector<CutSegment*> rejected;
    rejected.reserve(lines.size());
    for (const int line : lines)
        rejected.push_back(plot().GetCutSegment(line));
    for (CutSegment* segment : rejected) {
        RemoveCutSegment(segment);
        emit SegmentRejected(segment);
    }
}
