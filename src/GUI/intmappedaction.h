#pragma once

#include <QAction>

/// An action that stands for a number and says it when it is triggered.
class IntMappedAction : public QAction
{
    Q_OBJECT
public:
    IntMappedAction(int index, const QString& text, QObject* parent = nullptr);

signals:
    void triggered(int index);
};
