#include "blocktransform.h"

#include <algorithm>
#include <map>

namespace
{

/// Threads do not pay within one block.
size_t onOneThread(int length)
{
    FftPlan::SetThreadCount(1);
    FftPlan::SetPlannerEffort(FftPlan::EstimateEffort);
    return size_t(length);
}

} // namespace

BlockTransform::BlockTransform(int length)
    : m_Values(onOneThread(length)), m_Spectrum(size_t(length) / 2 + 1),
      m_Forward(length, m_Values.GetData(), m_Spectrum.GetData()),
      m_Backward(length, m_Spectrum.GetData(), m_Values.GetData())
{
}

std::shared_ptr<BlockTransform> BlockTransform::OfLength(int length)
{
    constexpr int longestKept = 65536;
    static std::map<int, std::shared_ptr<BlockTransform>> kept;
    if (length > longestKept)
        return std::make_shared<BlockTransform>(length);
    auto& transform = kept[length];
    if (!transform)
        transform = std::make_shared<BlockTransform>(length);
    return transform;
}

void BlockTransform::Forward(const double* values, int count)
{
    std::copy_n(values, count, m_Values.GetData());
    std::fill(m_Values.GetData() + count, m_Values.GetData() + m_Values.GetSize(), 0.0);
    m_Forward.Transform(m_Values.GetData(), m_Spectrum.GetData());
}

const double* BlockTransform::Backward()
{
    m_Backward.Transform(m_Spectrum.GetData(), m_Values.GetData());
    return m_Values.GetData();
}
