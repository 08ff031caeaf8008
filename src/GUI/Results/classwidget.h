#pragma once

#include "behaviorlabel.h"
#include <QPointer>
#include <QWidget>

class CutCollection;
class CutSegment;
class DataSet;
class LabelCollection;
class MultipleLinePlotWidget;
class SegmentViews;
class TableResultWidget;

/// The instances of one behaviour. It follows the behaviour's signals; segments dropped on it join
/// the behaviour.
class ClassWidget : public QWidget
{
    Q_OBJECT
public:
    explicit ClassWidget(QWidget* parent = nullptr);

    void SetDataSet(DataSet* dataSet);
    void SetCutCollection(CutCollection* cuts);
    void SetLabelCollection(LabelCollection* labels);
    /// Shows the instances of a behaviour; null lets go of the one before.
    void SetLabel(BehaviorLabel* label);
    BehaviorLabel* GetLabel() const { return m_Label; }
    void AddAttribute(int index, const QString& name);

public slots:
    /// Reads all instances anew, with the ends they have now.
    void removeAndAddAll();
    void addSegment(CutSegment* segment);
    void addSegments(QList<CutSegment*> segments);
    /// For signals of the views and the behaviour, whose sender takes its own copy out. The
    /// segment becomes a plain cut.
    void rejectSegment(CutSegment* segment);
    /// Asks for another behaviour and moves the segment there.
    void acceptSegment(CutSegment* segment);
    void changeAttribute(int attribute);
    /// Repaints the overlay.
    void updateResultPlot();

signals:
    void SegmentsUpdated();
    void ShowSelected(int from, int to);
    void NewResultsFound();
    /// Ends of segments have moved, also of such that belong to other behaviours or none.
    void SegmentsMoved();

protected:
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    QLayout* makeButtons();
    void connectViews();
    void connectLabel();
    void addToViews(CutSegment* segment);
    void moveSelected();
    void rejectSelected();
    void moveSegments(const QList<CutSegment*>& segments);
    CutSegment* droppedSegment(const QDropEvent& event) const;
    bool releaseFromOldLabel(CutSegment* segment);
    void takeIn(CutSegment* segment);

    DataSet* m_DataSet = nullptr;
    CutCollection* m_CutCollection = nullptr;
    LabelCollection* m_LabelCollection = nullptr;
    QPointer<BehaviorLabel> m_Label;
    SegmentViews* m_Views;
    MultipleLinePlotWidget* m_Overlay;
    TableResultWidget* m_Table;
};
