#pragma once

#include "lineplot.h"
#include "rowspan.h"
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
    const QList<RowSpan>& GetSpans() const { return m_Spans; }

private:
    QString m_Name;
    QColor m_Color;
    QList<RowSpan> m_Spans;
};

/// A plot with the labels of a study marked over the line.
class LinePlotLabel : public LinePlot
{
public:
    using LinePlot::LinePlot;

    /// Paints the labels that overlap the rows from to to.
    virtual void PaintRange(QPainter& painter, int from, int to);
    void Paint(QPainter& painter, int from, int to, bool grid) override;
    void Paint(QPainter& painter, bool grid) override;

    /// The label set stays the caller's; null shows none.
    void SetLabelCollection(const QList<StudyLabelInstance*>* labels)
    {
        m_LabelCollection = labels;
    }

private:
    const QList<StudyLabelInstance*>* m_LabelCollection = nullptr;
};
