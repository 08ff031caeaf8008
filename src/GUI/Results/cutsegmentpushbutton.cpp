#include "cutsegmentpushbutton.h"

#include "cutsegment.h"
#include <QSignalMapper>

CutSegmentPushButton::CutSegmentPushButton(QWidget* parent, CutSegment* segment)
    : QPushButton(parent)
{
    auto* mapper = new QSignalMapper(this);
    mapper->setMapping(this, segment);
    connect(this, &QPushButton::clicked, mapper, qOverload<>(&QSignalMapper::map));
    connect(mapper, &QSignalMapper::mappedObject, this, &CutSegmentPushButton::triggered);
}
