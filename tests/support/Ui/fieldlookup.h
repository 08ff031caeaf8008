#pragma once

#include <QLabel>
#include <QWidget>

/// The field that the label of that text belongs to, as a screen reader finds it.
template <class Field>
Field* FindField(const QWidget* widget, const QString& label)
{
    for (const QLabel* candidate : widget->findChildren<QLabel*>()) {
        if (candidate->text() == label && candidate->buddy())
            return qobject_cast<Field*>(candidate->buddy());
    }
    return nullptr;
}
