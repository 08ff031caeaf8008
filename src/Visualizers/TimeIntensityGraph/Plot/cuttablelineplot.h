#pragma once

#include "cuttableamplitudeline.h"
#include "lineplot.h"

/// A plot of the main graph: rows at their absolute place, and a line at 0 where it is wished.
class CuttableLinePlot : public LinePlot
{
public:
    CuttableLinePlot(int attribute, CutCollection* cuts);

    void Paint(QPainter& painter, int from, int to, bool grid) override;
    void Paint(QPainter& painter, bool grid) override;
    bool HasAbsoluteRows() const override { return true; }

    void SetShowLabeled(bool show) override { m_CuttableLine->SetShowLabeled(show); }
    void SetCutCollection(CutCollection* cuts) override { m_CuttableLine->SetCutCollection(cuts); }

private:
    void paintZeroLine(QPainter& painter) const;

    // The base's line.
    CuttableAmplitudeLine* m_CuttableLine;
};
