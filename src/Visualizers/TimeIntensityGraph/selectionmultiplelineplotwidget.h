#pragma once

#include "oldmultiplelineplot.h"
#include "oldmultiplelineplotwidget.h"
#include <QList>

/// Overlaid spans of which the user can reject those inside a rubber band.
class SelectionMultipleLinePlotWidget : public OldMultipleLinePlotWidget
{
    Q_OBJECT
public:
    explicit SelectionMultipleLinePlotWidget(QWidget* parent = nullptr)
        : OldMultipleLinePlotWidget(true, parent)
    {
    }

    /// The spans of all lines that were rejected so far.
    const QList<RowSpan>& GetRemovedRanges() const { return m_Removed; }

signals:
    void ItemsRemoved();

protected:
    void rejectLines(const std::vector<int>& lines) override
    {
        for (const int line : lines) {
            if (const auto rows = plot().GetRows(line))
                m_Removed.append(*rows);
        }
        OldMultipleLinePlotWidget::rejectLines(lines);
        emit ItemsRemoved();
    }

private:
    QList<RowSpan> m_Removed;
};
