#pragma once

#include "cutsegment.h"
#include <QWizard>

class CutCollection;
class DataSet;
class ThresholdFilterPage;
class ThresholdFinishPage;

/// Finds rows whose values lie above or below thresholds and makes them into results. The cuts
/// stay as they are until the wizard is finished.
class ThresholdWizard : public QWizard
{
    Q_OBJECT
public:
    /// searchMode: the state of the segments to search, those without a label or earlier results.
    ThresholdWizard(DataSet* dataSet, CutCollection* cuts, CutSegment::SEGMENT_STATE searchMode,
                    QWidget* parent = nullptr);

protected:
    void initializePage(int id) override;

private:
    ThresholdFilterPage* m_Filter;
    ThresholdFinishPage* m_Finish;
};
