#pragma once

#include "liverecording.h"
#include "segmenttablemodel.h"
#include <QPointer>
#include <QWidget>

class BehaviorLabel;
class CutSegment;
class QBoxLayout;
class SegmentViews;

/// What the panel of the candidates and those of the behaviours have in common: segments of a
/// recording in several layouts, which the user moves into behaviours or rejects.
class SegmentPanel : public QWidget
{
    Q_OBJECT
public:
    /// Shows a recording's segments and follows its changes; null lets go of it.
    void SetRecording(LiveRecording* recording);
    /// The parts of a recording one by one, for a panel that nobody tells of changes. Each may be
    /// null. Another data set or collection of segments empties the panel.
    virtual void SetDataSet(DataSet* dataSet);
    virtual void SetCutCollection(CutCollection* cuts);
    virtual void SetLabelCollection(LabelCollection* labels);
    /// An attribute has joined the data set.
    void AddAttribute(int index, const QString& name);

signals:
    /// Segments or labels are different now.
    void SegmentsUpdated();
    void ShowSelected(int from, int to);

protected:
    SegmentPanel(const QString& title, QWidget* parent);

    /// Brings the views in line with the segments that there are now.
    virtual void synchronize() = 0;
    /// Moves those of the segments that are still the panel's into a behaviour.
    virtual void moveInto(BehaviorLabel& behavior, const QList<CutSegment*>& segments) = 0;
    /// Takes the segments' labels, or the candidates, away.
    virtual void reject(const QList<CutSegment*>& segments) = 0;
    /// A search has found something.
    virtual void showNewResults() = 0;

    /// Asks for a behaviour and moves the segments there.
    void moveSegments(const QList<CutSegment*>& segments);
    void moveSelected();
    void rejectSelected();
    /// For the signal of a view that has taken its own copy out.
    void rejectInViews(CutSegment* segment);
    /// False, and a trace, when a slot that answers to views was called by nobody's signal.
    bool isAnswer() const;

    DataSet* dataSet() const { return m_DataSet; }
    CutCollection* cuts() const { return m_CutCollection; }
    LabelCollection* labels() const { return m_LabelCollection; }
    LiveRecording* recording() const { return m_Recording; }
    Labelling labelling() const { return {m_CutCollection, m_LabelCollection}; }
    SegmentViews* views() const { return m_Views; }
    /// Below the views, inside the panel's group.
    QBoxLayout* groupLayout() const { return m_GroupLayout; }

private:
    void connectViews();
    void showMovedEnds();

    DataSet* m_DataSet = nullptr;
    CutCollection* m_CutCollection = nullptr;
    LabelCollection* m_LabelCollection = nullptr;
    QPointer<LiveRecording> m_Recording;
    SegmentViews* m_Views;
    QBoxLayout* m_GroupLayout;
};
