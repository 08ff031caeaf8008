#pragma once

#include <QWidget>

class CutCollection;
class CutSegment;
class DataSet;
class LabelCollection;
class MultipleLinePlotWidget;
class SegmentViews;
class TableResultWidget;

/// The candidates of the searches, which the user moves into behaviours or rejects.
///
/// It shows the segments of the collections it was given and changes those only on the user's
/// word. Null collections leave it empty.
class ResultWidget : public QWidget
{
    Q_OBJECT
public:
    explicit ResultWidget(QWidget* parent = nullptr);

    void SetDataSet(DataSet* dataSet);
    void SetCutCollection(CutCollection* cuts);
    void SetLabelCollection(LabelCollection* labels);
    /// Makes the list of attributes and both views anew.
    void Rebuild();
    void AddAttribute(int index, const QString& name);
    /// Takes a segment out of the views only; one that is not there is passed over.
    void RemoveSegment(CutSegment* segment);

public slots:
    /// Shows all candidates that there are now.
    void ClearAndUpdateSegments();
    void changeAttribute(int attribute);
    /// Rejects candidates. One that follows another at once in the list of segments may stay for
    /// the next call: kept.
    void removeAllResults();
    void moveSelectedResults();
    void moveAllResults();
    /// For signals of the views, whose sender has taken its own copy out.
    void rejectSegment(CutSegment* segment);
    void acceptSegment(CutSegment* segment);
    /// The searches ask for all they need and show what they found.
    void openTemplateSearch();
    void openThresholdSearch();
    void openRuleAssociationSearch();
    /// Repaints the overlay.
    void updateResultPlot();

signals:
    void SegmentsUpdated();
    /// Results have moved into the behaviour of that name.
    void MoveResults(QString behavior);
    void ShowSelected(int from, int to);
    /// Ends of segments have moved, also of such that are no results.
    void SegmentsMoved();

private:
    QLayout* makeButtons();
    QWidget* makeSearchTools();
    void enableSearches();
    void showNewResults();
    void connectViews();
    void rejectSelectedResults();
    void rejectCandidate(CutSegment* segment);
    void moveSegments(const QList<CutSegment*>& segments);
    void endMove(const QString& behavior);
    QList<CutSegment*> candidates() const;

    DataSet* m_DataSet = nullptr;
    LabelCollection* m_LabelCollection = nullptr;
    CutCollection* m_CutCollection = nullptr;
    SegmentViews* m_Views;
    MultipleLinePlotWidget* m_GraphOverlay;
    TableResultWidget* m_Table;
    QWidget* m_SearchTools;
};
