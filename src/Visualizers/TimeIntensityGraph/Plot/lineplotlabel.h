#pragma once

#include "lineplot.h"
#include "studylabelinstance.h"

/// A plot with the labels of a study marked over the line.
class LinePlotLabel : public LinePlot
{
public:
    using LinePlot::LinePlot;

    /// Paints the labels that overlap the rows from to to.
    virtual void PaintRange(QPainter& painter, int from, int to);
    void Paint(QPainter& painter, int from, int to, bool grid) override;
    void Paint(QPainter& painter, bool grid) override;

    /// The label set stays the caller's; null shows none.
    void SetLabelCollection(const QList<StudyLabelInstance*>* labels)
    {
        m_LabelCollection = labels;
    }

private:
    const QList<StudyLabelInstance*>* m_LabelCollection = nullptr;
};
