#include "intmappedaction.h"

#include <QSignalMapper>

IntMappedAction::IntMappedAction(int index, const QString& text, QObject* parent)
    : QAction(text, parent)
{
    auto* mapper = new QSignalMapper(this);
    mapper->setMapping(this, index);
    connect(this, &QAction::triggered, mapper, qOverload<>(&QSignalMapper::map));
    connect(mapper, &QSignalMapper::mappedInt, this, &IntMappedAction::triggered);
}
