#pragma once

#include "behaviorlabel.h"
#include "segmentpanel.h"

class CutSegment;

/// The instances of one behaviour. It follows the behaviour's signals; segments dropped on it join
/// the behaviour.
class ClassWidget : public SegmentPanel
{
    Q_OBJECT
public:
    explicit ClassWidget(QWidget* parent = nullptr);

    void SetDataSet(DataSet* dataSet) override;
    void SetCutCollection(CutCollection* cuts) override;
    /// Shows the instances of a behaviour; null lets go of the one before.
    void SetLabel(BehaviorLabel* label);
    BehaviorLabel* GetLabel() const { return m_Label; }

public slots:
    /// Reads all instances anew, with the ends they have now.
    void removeAndAddAll();
    void addSegment(CutSegment* segment);
    void addSegments(QList<CutSegment*> segments);
    /// For signals of views, whose sender takes its own copy out. The segment becomes a plain cut.
    void rejectSegment(CutSegment* segment);
    /// Asks for another behaviour and moves the segment there.
    void acceptSegment(CutSegment* segment);
    void changeAttribute(int attribute);
    /// Repaints the overlay.
    void updateResultPlot();

signals:
    void NewResultsFound();

protected:
    void synchronize() override;
    void moveInto(BehaviorLabel& behavior, const QList<CutSegment*>& segments) override;
    void reject(const QList<CutSegment*>& segments) override;
    void showNewResults() override;

    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    QLayout* makeButtons();
    ShownSegment shown(CutSegment* segment) const;
    void letGo(CutSegment* segment);
    CutSegment* droppedSegment(const QDropEvent& event) const;
    bool agreesToChange(const CutSegment& segment);

    QPointer<BehaviorLabel> m_Label;
};
