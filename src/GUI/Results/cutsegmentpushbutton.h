#pragma once

#include <QPushButton>

class CutSegment;

/// A button that stands for a segment and says it when it is clicked.
class CutSegmentPushButton : public QPushButton
{
    Q_OBJECT
public:
    CutSegmentPushButton(QWidget* parent, CutSegment* segment);

signals:
    /// object: the segment.
    void triggered(QObject* object);
};
