#pragma once

#include "lineplot.h"

class CutCollection;

/// A plot of the main graph: rows at their absolute place, and a line at 0 where it is wished.
class CuttableLinePlot : public LinePlot
{
public:
    CuttableLinePlot(int attribute, CutCollection* cuts);

    void Paint(QPainter& painter, int from, int to, bool grid) override;
    void Paint(QPainter& painter, bool grid) override;
    bool HasAbsoluteRows() const override { return true; }

    void SetShowLabeled(bool show);
    void SetCutCollection(CutCollection* cuts);

private:
    void paintZeroLine(QPainter& painter) const;
};
