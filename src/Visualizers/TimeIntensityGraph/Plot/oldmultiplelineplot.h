#pragma once

#include "overlaidlines.h"
#include "rowspan.h"
#include <optional>

/// Lines without segments: spans of rows, and arrays such as the signals of a template.
class OldMultipleLinePlot : public OverlaidLines
{
public:
    /// The rows from up to, but without, to; the value axis takes the limits of the attribute.
    void AddLine(DataSet* data, int attribute, int from, int to, const QColor& color);
    /// An array, which stays the caller's. The value axis is left as it is.
    void AddLine(double* values, int size, const QColor& color);
    /// The rows of a line; none for an array.
    std::optional<RowSpan> GetRows(int index) const;
};
