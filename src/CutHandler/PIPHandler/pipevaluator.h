#pragma once

#include "constspan.h"
#include "pipsegment.h"
#include <vector>

/// Finds the row of a segment that has the largest distance from the line between its ends.
///
/// The lowest and highest value of every block of rows, and of every range of blocks, are noted,
/// so that those that can't hold the best row are passed over: cutting a long recording often at
/// its end stays cheap. The result is that of a scan over all rows, down to the last bit.
class PIPEvaluator
{
public:
    /// values: not copied.
    PIPEvaluator(ConstSpan<double> values, int measure);

    int GetRowCount() const { return m_Values.size(); }
    /// Leaves the rows around a split out of what is evaluated from now on: up to two in front,
    /// itself and one behind.
    void MaskAround(int row);
    /// Sets the best row and distance. Rows whose distance is not a number are no candidates; of
    /// equal distances the last counts.
    void Evaluate(PIPSegment& segment) const;

private:
    struct Block {
        double m_Low;
        double m_High;
    };
    // A block's rows inside a segment, to not included, and what none of them exceeds.
    struct Span {
        int m_From;
        int m_To;
        double m_Bound;
    };
    static constexpr int BlockRows = 256;
    static constexpr int RangeRows = 16 * BlockRows;

    static std::vector<Block> makeBlocks(ConstSpan<double> values);
    static std::vector<Block> makeRanges(const std::vector<Block>& blocks);
    template <class Distance>
    void search(PIPSegment& segment) const;
    template <class Distance>
    void searchRange(const Span& range, const Distance& distance, PIPSegment& segment) const;
    template <class Distance>
    static std::vector<Span> boundedSpans(int from, int to, const Distance& distance,
                                          const std::vector<Block>& blocks, int blockRows);
    template <class Distance>
    void searchRows(const Span& span, const Distance& distance, PIPSegment& segment) const;

    ConstSpan<double> m_Values;
    std::vector<Block> m_Blocks;
    std::vector<Block> m_Ranges;
    std::vector<char> m_Mask;
    int m_Measure;
};
