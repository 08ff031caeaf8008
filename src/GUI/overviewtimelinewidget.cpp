#include "overviewtimelinewidget.h"

#include "cutsegment.h"
#include "dataset.h"
#include "labelcollection.h"
#include <QPainter>
#include <algorithm>

namespace
{

// Narrower marks and labels would hardly be seen on a long recording.
constexpr int MINIMUM_MARKER = 4;
constexpr int MINIMUM_LABEL = 1;

} // namespace

OverviewTimelineWidget::OverviewTimelineWidget(QWidget* parent) : QWidget(parent)
{
    setToolTip(tr("The whole recording: labelled segments, and the part that is on screen"));
}

void OverviewTimelineWidget::SetRecording(LiveRecording* recording)
{
    if (m_Recording)
        m_Recording->disconnect(this);
    m_Recording = recording;
    SetDataSet(DataOf(recording));
    SetLabelCollection(LabelsOf(recording));
    if (recording)
        connect(recording, &LiveRecording::SegmentsChanged, this,
                &OverviewTimelineWidget::UpdateLabels);
}

void OverviewTimelineWidget::SetDataSet(DataSet* dataSet)
{
    m_DataSet = dataSet;
    UpdateLabels();
}

void OverviewTimelineWidget::SetLabelCollection(LabelCollection* labels)
{
    m_LabelCollection = labels;
    UpdateLabels();
}

void OverviewTimelineWidget::UpdateLabels()
{
    // A change of many labels tells of each of them: painted once, when it is seen.
    m_Picture.Invalidate();
    update();
}

void OverviewTimelineWidget::SetSelection(int from, int to)
{
    m_MarkerFrom = from;
    m_MarkerTo = to;
    update();
}

void OverviewTimelineWidget::paintLabels(QPainter& painter) const
{
    if (!m_DataSet || !m_LabelCollection || m_DataSet->GetRowCount() == 0)
        return;
    const double pixelsPerRow = double(width()) / m_DataSet->GetRowCount();
    for (int i = 0; i < m_LabelCollection->GetLabelCount(); ++i) {
        const BehaviorLabel* label = m_LabelCollection->GetLabel(i);
        for (int j = 0; j < label->GetInstanceCount(); ++j) {
            const CutSegment* segment = label->GetInstance(j)->GetSegment();
            const int from = int(segment->GetFrom() * pixelsPerRow);
            const int wide = int(segment->GetLength() * pixelsPerRow);
            painter.fillRect(from, 0, std::max(wide, MINIMUM_LABEL), height(), segment->GetColor());
        }
    }
}

void OverviewTimelineWidget::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    m_Picture.Paint(painter, {}, size(), devicePixelRatioF(),
                    [this](QPainter& labels) { paintLabels(labels); });
    if (!m_DataSet || (m_MarkerFrom == -1 && m_MarkerTo == -1))
        return;
    const int wide = std::max(m_MarkerTo - m_MarkerFrom, MINIMUM_MARKER);
    QColor fill = palette().color(QPalette::Highlight);
    painter.setPen(QPen(fill.darker(150), 2));
    fill.setAlphaF(0.4);
    painter.setBrush(fill);
    painter.drawRect(m_MarkerFrom + 1, 1, wide - 2, height() - 2);
}
