#pragma once

#include "cutsegment.h"
#include <QDialog>

/// Asks which segments a search shall look at. Cancelling leaves the dialog rejected.
class ResultSearchOptionDialog : public QDialog
{
    Q_OBJECT
public:
    explicit ResultSearchOptionDialog(QWidget* parent = nullptr);

    /// The state of the segments to search.
    CutSegment::SEGMENT_STATE GetSearchMode() const { return m_SearchMode; }

public slots:
    void searchUnlabeledData();
    void searchRefineResults();

private:
    CutSegment::SEGMENT_STATE m_SearchMode = CutSegment::SEGMENT_CUT;
};
