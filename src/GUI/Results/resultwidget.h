#pragma once

#include "segmentpanel.h"

/// The candidates of the searches, which the user moves into behaviours or rejects.
///
/// It shows the segments of the collections it was given and changes those only on the user's
/// word. Null collections leave it empty.
class ResultWidget : public SegmentPanel
{
    Q_OBJECT
public:
    explicit ResultWidget(QWidget* parent = nullptr);

    void SetDataSet(DataSet* dataSet) override;
    void SetCutCollection(CutCollection* cuts) override;
    /// Makes the list of attributes and both views anew.
    void Rebuild();
    /// Takes a segment out of the views only; one that is not there is passed over.
    void RemoveSegment(CutSegment* segment);

public slots:
    /// Shows all candidates that there are now.
    void ClearAndUpdateSegments();
    void changeAttribute(int attribute);
    /// Rejects candidates. One that follows another at once in the list of segments may stay for
    /// the next call.
    void removeAllResults();
    void moveSelectedResults();
    void moveAllResults();
    /// For signals of views, whose sender has taken its own copy out.
    void rejectSegment(CutSegment* segment);
    void acceptSegment(CutSegment* segment);
    /// The searches ask for all they need and show what they found.
    void openTemplateSearch();
    void openThresholdSearch();
    void openRuleAssociationSearch();
    /// Repaints the overlay.
    void updateResultPlot();

signals:
    /// Results have moved into the behaviour of that name.
    void MoveResults(QString behavior);

protected:
    void synchronize() override;
    void moveInto(BehaviorLabel& behavior, const QList<CutSegment*>& segments) override;
    void reject(const QList<CutSegment*>& segments) override;
    void showNewResults() override;

private:
    QLayout* makeButtons();
    QWidget* makeSearchTools();
    void enableSearches();
    void endMove(const QString& behavior);

    QWidget* m_SearchTools;
};
