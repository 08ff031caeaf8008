#pragma once

#include "cachedpicture.h"
#include "liverecording.h"
#include <QPointer>
#include <QWidget>

/// The whole recording as a thin strip: its labelled segments, and a marker over the part that
/// the main graph shows.
class OverviewTimelineWidget : public QWidget
{
    Q_OBJECT
public:
    explicit OverviewTimelineWidget(QWidget* parent = nullptr);

    /// Shows a recording and follows its changes; null shows none.
    void SetRecording(LiveRecording* recording);
    void SetDataSet(DataSet* dataSet);
    void SetLabelCollection(LabelCollection* labels);

public slots:
    /// Paints the labels anew.
    void UpdateLabels();
    /// Moves the marker to pixels of this widget; (-1, -1) takes it away.
    void SetSelection(int from, int to);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void paintLabels(QPainter& painter) const;

    QPointer<LiveRecording> m_Recording;
    DataSet* m_DataSet = nullptr;
    LabelCollection* m_LabelCollection = nullptr;
    CachedPicture m_Picture;
    int m_MarkerFrom = -1;
    int m_MarkerTo = -1;
};
