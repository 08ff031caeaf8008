#pragma once

#include "cutsegment.h"
#include <QPushButton>
#include <QSignalMapper>

/// A button that stands for a segment and says it when it is clicked.
class CutSegmentPushButton : public QPushButton
{
    Q_OBJECT
public:
    CutSegmentPushButton(QWidget* parent, CutSegment* segment) : QPushButton(parent)
    {
        auto* mapper = new QSignalMapper(this);
        mapper->setMapping(this, segment);
        connect(this, &QPushButton::clicked, mapper, qOverload<>(&QSignalMapper::map));
        connect(mapper, &QSignalMapper::mappedObject, this, &CutSegmentPushButton::triggered);
    }

signals:
    /// object: the segment.
    void triggered(QObject* object);
};
