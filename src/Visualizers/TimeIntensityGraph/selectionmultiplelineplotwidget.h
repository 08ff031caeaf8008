#pragma once

#include "oldmultiplelineplotwidget.h"
#include "rowspan.h"
#include <QList>

/// Overlaid spans of which the user can reject those inside a rubber band.
class SelectionMultipleLinePlotWidget : public OldMultipleLinePlotWidget
{
    Q_OBJECT
public:
    explicit SelectionMultipleLinePlotWidget(QWidget* parent = nullptr);

    /// The spans of all lines that were rejected so far.
    const QList<RowSpan>& GetRemovedRanges() const { return m_Removed; }

signals:
    void ItemsRemoved();

protected:
    void rejectLines(const std::vector<int>& lines) override;

private:
    QList<RowSpan> m_Removed;
};
