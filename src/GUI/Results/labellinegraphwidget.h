#pragma once

#include <QListView>

class SegmentTableModel;

/// The labels of a behaviour as small graphs of one attribute, to leaf through: as many side by
/// side as fit, each with its rows below it. A click on one asks to see it in the time series.
class LabelLineGraphWidget : public QListView
{
    Q_OBJECT
public:
    /// Shows the rows of a segment table, which it does not own.
    explicit LabelLineGraphWidget(SegmentTableModel* model, QWidget* parent = nullptr);

signals:
    void ShowSelected(int from, int to);

private:
    void showInTimeSeries(const QModelIndex& index);

    SegmentTableModel* m_Segments;
};
