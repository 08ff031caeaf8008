#pragma once

#include "constspan.h"
#include "pipsegment.h"
#include <vector>

/// Finds the row of a segment that has the largest distance from the line between its ends.
///
/// The lowest and highest value of every block of rows are noted, so that blocks that can't hold
/// the best row are passed over: cutting a long recording often at its end stays cheap. The
/// result is that of a scan over all rows, down to the last bit.
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

    static std::vector<Block> makeBlocks(ConstSpan<double> values);
    template <class Distance>
    void search(PIPSegment& segment) const;
    template <class Distance>
    std::vector<Span> boundedSpans(const PIPSegment& segment, const Distance& distance) const;
    template <class Distance>
    void searchRows(const Span& span, const Distance& distance, PIPSegment& segment) const;

    ConstSpan<double> m_Values;
    std::vector<Block> m_Blocks;
    std::vector<char> m_Mask;
    int m_Measure;
};
