#pragma once

class CutSegment;

/// One occurrence of a behaviour.
class LabelInstance
{
public:
    explicit LabelInstance(CutSegment* segment = nullptr) : m_Segment(segment) {}

    CutSegment* GetSegment() const { return m_Segment; }
    void SetSegment(CutSegment* segment) { m_Segment = segment; }

private:
    // Owned by the CutCollection.
    CutSegment* m_Segment;
};
