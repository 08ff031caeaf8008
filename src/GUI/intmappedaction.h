#pragma once

#include <QAction>
#include <QSignalMapper>

/// An action that stands for a number and says it when it is triggered.
class IntMappedAction : public QAction
{
    Q_OBJECT
public:
    IntMappedAction(int index, const QString& text, QObject* parent = nullptr)
        : QAction(text, parent)
    {
        auto* mapper = new QSignalMapper(this);
        mapper->setMapping(this, index);
        connect(this, &QAction::triggered, mapper, qOverload<>(&QSignalMapper::map));
        connect(mapper, &QSignalMapper::mappedInt, this, &IntMappedAction::triggered);
    }

signals:
    void triggered(int index);
};
