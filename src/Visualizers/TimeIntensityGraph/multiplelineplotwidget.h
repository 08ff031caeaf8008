#pragma once

#include "overlaidlineswidget.h"

class CutSegment;
class DataSet;
class MultipleLinePlot;

/// All results of a search over each other; results inside a rubber band can be rejected.
class MultipleLinePlotWidget : public OverlaidLinesWidget
{
    Q_OBJECT
public:
    explicit MultipleLinePlotWidget(QWidget* parent = nullptr);

    /// The picture is painted anew by RepaintLines, once all lines are there.
    void AddLine(DataSet* dataSet, CutSegment* segment, int attribute, int from, int to,
                 const QColor& color);
    void AddLine(DataSet* dataSet, CutSegment* segment, int attribute, const QColor& color);
    void RemoveCutSegment(CutSegment* segment);
    /// Many at once; segments without a line are passed over.
    void RemoveCutSegments(const QList<CutSegment*>& segments);

signals:
    void SegmentRejected(CutSegment* segment);

protected:
    void rejectLines(const std::vector<int>& lines) override;

private:
    MultipleLinePlot& plot() const;
};
