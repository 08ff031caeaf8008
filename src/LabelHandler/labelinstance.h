#pragma once

class BehaviorLabel;
class CutSegment;

/// One occurrence of a behaviour.
class LabelInstance
{
public:
    explicit LabelInstance(CutSegment* segment = nullptr) : m_Segment(segment) {}

    CutSegment* GetSegment() const { return m_Segment; }
    void SetSegment(CutSegment* segment);

    /// The behaviour that owns the instance and hears of its changes, or null; set by it.
    BehaviorLabel* GetLabel() const { return m_Label; }
    void SetLabel(BehaviorLabel* label) { m_Label = label; }

private:
    // Owned by the CutCollection.
    CutSegment* m_Segment;
    BehaviorLabel* m_Label = nullptr;
};
