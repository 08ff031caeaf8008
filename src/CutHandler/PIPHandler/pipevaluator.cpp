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

} // namespace

PIPEvaluator::PIPEvaluator(ConstSpan<double> values, int measure)
    : m_Values(values), m_Blocks(makeBlocks(values)), m_Mask(size_t(values.size()), 0),
      m_Measure(measure)
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
    const std::vector<Span> spans = boundedSpans(segment, distance);
    if (spans.empty())
        return;
    // The most promising block first: what it holds rules most others out.
    searchRows(
        *std::max_element(spans.begin(), spans.end(),
                          [](const Span& a, const Span& b) { return a.m_Bound < b.m_Bound; }),
        distance, segment);
    for (auto span = spans.rbegin(); span != spans.rend(); ++span) {
        const bool canTie = span->m_Bound == segment.m_BestDistance;
        if (span->m_Bound > segment.m_BestDistance || (canTie && span->m_To > segment.m_BestIndex))
            searchRows(*span, distance, segment);
    }
}

template <class Distance>
std::vector<PIPEvaluator::Span> PIPEvaluator::boundedSpans(const PIPSegment& segment,
                                                           const Distance& distance) const
{
    std::vector<Span> spans;
    const int first = segment.m_Start / BlockRows;
    const int last = (segment.m_End - 1) / BlockRows;
    spans.reserve(size_t(last - first) + 1);
    for (int i = first; i <= last; ++i) {
        const Block& block = m_Blocks[size_t(i)];
        if (block.m_Low > block.m_High)
            continue; // no numbers
        const int from = std::max(i * BlockRows, segment.m_Start);
        const int to = std::min(segment.m_End - i * BlockRows, BlockRows) + i * BlockRows;
        spans.push_back({from, to, bound(distance, from, to - 1, block.m_Low, block.m_High)});
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
