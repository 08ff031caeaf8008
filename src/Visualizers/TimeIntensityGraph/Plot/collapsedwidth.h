#pragma once

#include "cutsegment.h"
#include <algorithm>

/// The room that a labelled segment takes when it is collapsed to a block.
inline int CollapsedWidth(const CutSegment& segment)
{
    return std::max(segment.GetLength() / 10, 20);
}
