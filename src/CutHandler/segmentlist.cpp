#include "segmentlist.h"

#include "cutsegment.h"
#include <algorithm>

namespace
{

constexpr size_t blockSize = 256;

bool areApart(const EndLimits& a, const EndLimits& b)
{
    return a.m_HighestFrom < b.m_LowestFrom || b.m_HighestFrom < a.m_LowestFrom ||
           a.m_HighestTo < b.m_LowestTo || b.m_HighestTo < a.m_LowestTo;
}

} // namespace

void SegmentList::Insert(int index, CutSegment* segment)
{
    m_Segments.insert(m_Segments.begin() + index, segment);
    m_Ends.insert(m_Ends.begin() + index, Ends{segment->GetFrom(), segment->GetTo()});
    forgetBlocks(size_t(index));
    segment->SetList(this);
}

int SegmentList::Remove(const CutSegment* segment)
{
    const int index = IndexOf(segment);
    if (index == -1)
        return -1;
    Get(index)->SetList(nullptr);
    m_Segments.erase(m_Segments.begin() + index);
    m_Ends.erase(m_Ends.begin() + index);
    forgetBlocks(size_t(index));
    return index;
}

std::vector<CutSegment*> SegmentList::TakeAll()
{
    for (CutSegment* segment : m_Segments)
        segment->SetList(nullptr);
    m_Ends.clear();
    m_Blocks.clear();
    return std::exchange(m_Segments, {});
}

void SegmentList::PutAll(std::vector<CutSegment*> segments)
{
    m_Segments = std::move(segments);
    m_Ends.reserve(m_Segments.size());
    for (CutSegment* segment : m_Segments) {
        m_Ends.push_back({segment->GetFrom(), segment->GetTo()});
        segment->SetList(this);
    }
}

bool SegmentList::Contains(const CutSegment* segment) const
{
    return segment && segment->GetList() == this;
}

int SegmentList::IndexOf(const CutSegment* segment) const
{
    return Contains(segment) ? indexOf(segment, {segment->GetFrom(), segment->GetTo()}) : -1;
}

int SegmentList::indexOf(const CutSegment* segment, const Ends& ends) const
{
    const EndLimits same{ends.m_From, ends.m_From, ends.m_To, ends.m_To};
    int index = FindNext(same);
    while (Get(index) != segment)
        index = FindNext(same, index + 1);
    return index;
}

int SegmentList::FindNext(const EndLimits& limits, int start) const
{
    const auto fits = [&](const Ends& ends) {
        return limits.m_LowestFrom <= ends.m_From && ends.m_From <= limits.m_HighestFrom &&
               limits.m_LowestTo <= ends.m_To && ends.m_To <= limits.m_HighestTo;
    };
    for (size_t i = size_t(start); i < m_Ends.size();) {
        const size_t block = i / blockSize;
        const size_t blockEnd = std::min((block + 1) * blockSize, m_Ends.size());
        if (!areApart(limits, blockLimits(block))) {
            const auto end = m_Ends.begin() + long(blockEnd);
            const auto found = std::find_if(m_Ends.begin() + long(i), end, fits);
            if (found != end)
                return int(found - m_Ends.begin());
        }
        i = blockEnd;
    }
    return -1;
}

const EndLimits& SegmentList::blockLimits(size_t block) const
{
    while (m_Blocks.size() <= block)
        m_Blocks.push_back(computeBlockLimits(m_Blocks.size()));
    return m_Blocks[block];
}

EndLimits SegmentList::computeBlockLimits(size_t block) const
{
    const Ends& first = m_Ends[block * blockSize];
    EndLimits limits{first.m_From, first.m_From, first.m_To, first.m_To};
    const size_t end = std::min((block + 1) * blockSize, m_Ends.size());
    for (size_t i = block * blockSize; i < end; ++i) {
        limits.m_LowestFrom = std::min(limits.m_LowestFrom, m_Ends[i].m_From);
        limits.m_HighestFrom = std::max(limits.m_HighestFrom, m_Ends[i].m_From);
        limits.m_LowestTo = std::min(limits.m_LowestTo, m_Ends[i].m_To);
        limits.m_HighestTo = std::max(limits.m_HighestTo, m_Ends[i].m_To);
    }
    return limits;
}

// Segments from index on have other places now.
void SegmentList::forgetBlocks(size_t index) const
{
    m_Blocks.resize(std::min(m_Blocks.size(), index / blockSize));
}

void SegmentList::EndsChanged(const CutSegment* segment, int from, int to)
{
    const auto index = size_t(indexOf(segment, {from, to}));
    m_Ends[index] = {segment->GetFrom(), segment->GetTo()};
    if (index / blockSize < m_Blocks.size())
        m_Blocks[index / blockSize] = computeBlockLimits(index / blockSize);
}
