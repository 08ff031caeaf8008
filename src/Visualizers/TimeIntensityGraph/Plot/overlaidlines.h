#pragma once

#include "rowspan.h"
#include <QColor>
#include <QRectF>
#include <memory>
#include <vector>

class AmplitudeLine;
class DataSet;
class QPainter;
class TimeAxis;
class VerticalAxis;

/// Many lines over one value axis. Each line has a time axis of its own, and all of them the same
/// extent: spans of different lengths are stretched to one width.
class OverlaidLines
{
public:
    OverlaidLines();
    virtual ~OverlaidLines();

    /// Grid, the first line with its axes, then the other lines, and those of arrays once more on
    /// top.
    void Paint(QPainter& painter) const;
    void SetSize(float height, float width);
    void SetAlpha(double alpha);
    int GetLineCount() const { return int(m_Entries.size()); }
    VerticalAxis* GetVerticalAxis() const { return m_VerticalAxis.get(); }
    /// All lines of data sets show that attribute; the value axis takes its limits.
    void ChangeAttributeID(int attribute);
    /// The lines, in the order of their adding, that have a value inside the box of pixels.
    std::vector<int> FindLines(const QRectF& box) const;
    /// The places of those spans of rows of which a line would have a value inside the box.
    std::vector<int> FindSpans(const DataSet& data, int attribute,
                               const std::vector<RowSpan>& spans, const QRectF& box) const;
    /// Removes the line and its time axis.
    virtual void RemoveLine(int index);
    void Clear();

protected:
    struct Entry {
        std::unique_ptr<AmplitudeLine> m_Line;
        std::unique_ptr<TimeAxis> m_TimeAxis;
        /// The first row of a data set's line, and the row count of the line.
        int m_From;
        int m_Count;
    };

    /// Appends a line that spreads count points over the width.
    Entry& appendLine(int attribute, int from, int count, const QColor& color);
    void setLimits(double minimum, double maximum);
    const Entry& entry(int index) const { return m_Entries[size_t(index)]; }

private:
    void layOut(TimeAxis& axis) const;
    static bool hasValueInside(const Entry& entry, const QRectF& box, float low, float high);

    std::unique_ptr<VerticalAxis> m_VerticalAxis;
    std::vector<Entry> m_Entries;
    float m_Height = 0;
    float m_Width = 0;
};
