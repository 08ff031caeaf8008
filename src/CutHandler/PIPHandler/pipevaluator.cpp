#include "pipevaluator.h"

#include "pipdistance.h"
#include "pipextractor.h"
#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

namespace
{

constexpr double infinite = std::numeric_limits<double>::infinity();
constexpr double missing = std::numeric_limits<double>::quiet_NaN();

// No distance inside the rectangle exceeds this.
template <class Distance>
double bound(const Distance& distance, int from, int last, double low, double high)
{
    const double corners[] = {distance(from, low), distance(from, high), distance(last, low),
                              distance(last, high)};
    const double largest = *std::max_element(std::begin(corners), std::end(corners));
    const double sum = corners[0] + corners[1] + corners[2] + corners[3];
    // Infinite values may give corners that are no numbers, and say nothing then.
    return std::isnan(sum) ? infinite : largest + distance.Slack(low, high);
}

// Looks into all spans that can hold a row as good as the segment's best one, or a better one.
template <class Span, class Look>
void searchSpans(const std::vector<Span>& spans, const PIPSegment& segment, const Look& look)
{
    if (spans.empty())
        return;
    // The most promising one first: what it holds rules most others out.
    const auto first =
        std::max_element(spans.begin(), spans.end(),
                         [](const Span& a, const Span& b) { return a.m_Bound < b.m_Bound; });
    look(*first);
    for (auto span = spans.end(); span-- != spans.begin();) {
        const bool canTie = span->m_Bound == segment.m_BestDistance;
        const bool canWin =
            span->m_Bound > segment.m_BestDistance || (canTie && span->m_To > segment.m_BestIndex);
        if (canWin && span != first)
            look(*span);
    }
}

} // namespace

PIPEvaluator::PIPEvaluator(ConstSpan<double> values, int measure)
    : m_Values(values), m_Blocks(makeBlocks(values)), m_Ranges(makeRanges(m_Blocks)),
      m_Mask(size_t(values.size()), 0), m_Measure(measure)
{
}

std::vector<PIPEvaluator::Block> PIPEvaluator::makeBlocks(ConstSpan<double> values)
{
    std::vector<Block> blocks((size_t(values.size()) + BlockRows - 1) / BlockRows,
                              {infinite, -infinite});
    for (int row = 0; row < values.size(); ++row) {
        Block& block = blocks[size_t(row / BlockRows)];
        // In this order a value that is not a number changes nothing.
        block.m_Low = std::min(block.m_Low, values[row]);
        block.m_High = std::max(block.m_High, values[row]);
    }
    return blocks;
}

std::vector<PIPEvaluator::Block> PIPEvaluator::makeRanges(const std::vector<Block>& blocks)
{
    constexpr size_t blocksInRange = RangeRows / BlockRows;
    std::vector<Block> ranges((blocks.size() + blocksInRange - 1) / blocksInRange,
                              {infinite, -infinite});
    for (size_t i = 0; i < blocks.size(); ++i) {
        Block& range = ranges[i / blocksInRange];
        range.m_Low = std::min(range.m_Low, blocks[i].m_Low);
        range.m_High = std::max(range.m_High, blocks[i].m_High);
    }
    return ranges;
}

void PIPEvaluator::MaskAround(int row)
{
    const int to = std::min(row + 2, GetRowCount() - 1);
    for (int i = std::max(row - 2, 0); i < to; ++i)
        m_Mask[size_t(i)] = 1;
}

void PIPEvaluator::Evaluate(PIPSegment& segment) const
{
    switch (m_Measure) {
    case PIPExtractor::EUCLIDEAN_DISTANCE:
        return search<EuclideanDistance>(segment);
    case PIPExtractor::VERTICAL_DISTANCE:
        return search<VerticalDistance>(segment);
    case PIPExtractor::PERPENDICULAR_DISTANCE:
        return search<PerpendicularDistance>(segment);
    default:
        return search<UnknownDistance>(segment);
    }
}

template <class Distance>
void PIPEvaluator::search(PIPSegment& segment) const
{
    segment.m_BestIndex = -1;
    segment.m_BestDistance = PIPSegment::NoDistance;
    if (segment.m_End - segment.m_Start < 2)
        return;
    const Distance distance({segment.m_Start, segment.m_End, std::trunc(m_Values[segment.m_Start]),
                             std::trunc(m_Values[segment.m_End])});
    if (segment.m_End - segment.m_Start <= RangeRows) {
        searchRange({segment.m_Start, segment.m_End, infinite}, distance, segment);
        return;
    }
    searchSpans(boundedSpans(segment.m_Start, segment.m_End, distance, m_Ranges, RangeRows),
                segment, [&](const Span& range) { searchRange(range, distance, segment); });
}

template <class Distance>
void PIPEvaluator::searchRange(const Span& range, const Distance& distance,
                               PIPSegment& segment) const
{
    searchSpans(boundedSpans(range.m_From, range.m_To, distance, m_Blocks, BlockRows), segment,
                [&](const Span& block) { searchRows(block, distance, segment); });
}

template <class Distance>
std::vector<PIPEvaluator::Span>
PIPEvaluator::boundedSpans(int from, int to, const Distance& distance,
                           const std::vector<Block>& blocks, int blockRows)
{
    std::vector<Span> spans;
    const int first = from / blockRows;
    const int last = (to - 1) / blockRows;
    spans.reserve(size_t(last - first) + 1);
    for (int i = first; i <= last; ++i) {
        const Block& block = blocks[size_t(i)];
        const int start = std::max(i * blockRows, from);
        if (block.m_Low > block.m_High && std::isnan(distance(start, missing)))
            continue; // no numbers
        const int end = std::min(to - i * blockRows, blockRows) + i * blockRows;
        spans.push_back({start, end, bound(distance, start, end - 1, block.m_Low, block.m_High)});
    }
    return spans;
}

template <class Distance>
void PIPEvaluator::searchRows(const Span& span, const Distance& distance, PIPSegment& segment) const
{
    for (int row = span.m_From; row < span.m_To; ++row) {
        if (m_Mask[size_t(row)])
            continue;
        const double found = distance(row, m_Values[row]);
        const bool isTie = found == segment.m_BestDistance && row > segment.m_BestIndex;
        if (found > segment.m_BestDistance || isTie) {
            segment.m_BestDistance = found;
            segment.m_BestIndex = row;
        }
    }
}
