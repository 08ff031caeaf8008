#pragma once

#include "rowrange.h"
#include <QColor>
#include <QList>
#include <QString>

/// A label of a study: a name, a colour and the row spans that carry it.
class StudyLabelInstance
{
public:
    StudyLabelInstance(const QString& name, const QColor& color) : m_Name(name), m_Color(color) {}

    QString GetName() const { return m_Name; }
    QColor GetColor() const { return m_Color; }
    void AddSpan(int start, int end) { m_Spans.append({start, end}); }
    const QList<RowRange>& GetSpans() const { return m_Spans; }

private:
    QString m_Name;
    QColor m_Color;
    QList<RowRange> m_Spans;
};
