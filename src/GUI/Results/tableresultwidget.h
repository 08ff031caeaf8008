#pragma once

#include "rowspan.h"
#include <QPersistentModelIndex>
#include <QTimer>
#include <QWidget>
#include <optional>

class CutCollection;
class CutSegment;
class DataSet;
class QMenu;
class QTableView;
class SegmentTableModel;

/// A table of segments with a sparkline and two buttons in each row. Tens of thousands of rows do
/// no harm: lines are painted and buttons made only where rows are in view.
///
/// The table takes a rejected segment out itself; an accepted one stays until the owner of the
/// table takes it out.
class TableResultWidget : public QWidget
{
    Q_OBJECT
public:
    explicit TableResultWidget(QWidget* parent = nullptr);

    /// Another data set or collection takes all rows away.
    void SetDataSet(DataSet* dataSet);
    void SetCutCollection(CutCollection* cuts);
    void SetAttribute(int attribute);

    /// A segment that is there already is passed over.
    void AddSegment(CutSegment* segment, const QColor& color);
    /// A segment that is not there is passed over.
    void RemoveSegment(CutSegment* segment);
    /// Many at once; rows around them stay in view.
    void RemoveSegments(const QList<CutSegment*>& segments);
    void Clear();
    /// Between the two, the table is not brought up to date.
    void BeginBulk();
    void EndBulk();

    bool Contains(CutSegment* segment) const;
    /// From the first row to the last.
    QList<CutSegment*> SelectedSegments() const;
    /// The rows of the table, for further views of them.
    SegmentTableModel* GetModel() const { return m_Model; }

public slots:
    /// Gives buttons to the rows that have come into view, and takes those of the others.
    void tableResized();
    /// The menu of the row at a point of the table's viewport.
    void provideContextMenu(QPoint point);
    void acceptItem(QObject* segment);
    void rejectItem(QObject* segment);

signals:
    void SegmentRejected(CutSegment* segment);
    void SegmentAccepted(CutSegment* segment);
    /// The user rejects the selected rows, which are still there.
    void SelectionRejected();
    /// Ends of segments have moved.
    void RemoveAndAddAll();
    void ShowSelected(int from, int to);
    void NewResultsFound();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    struct MenuEntry;
    static const std::vector<MenuEntry>& menuEntries();
    void layOutColumns();
    void connectTable();
    QWidget* makeButtons(CutSegment* segment);
    bool isInView(int row) const;
    void searchTemplate(CutSegment* segment);
    void saveTemplate(CutSegment* segment);
    void showInTimeSeries(CutSegment* segment);
    void resizeSegment(CutSegment* segment);
    std::optional<RowSpan> askForEnds(const CutSegment& segment);

    SegmentTableModel* m_Model;
    QTableView* m_Table;
    // Outlives its closing: an entry may open a dialog, which the menu has to survive.
    QMenu* m_ContextMenu;
    CutCollection* m_CutCollection = nullptr;
    // The rows that have buttons; invalid ones have lost them with their row.
    QList<QPersistentModelIndex> m_ButtonRows;
    // Lets many changes of the rows go by before buttons are made.
    QTimer m_ButtonTimer;
};
