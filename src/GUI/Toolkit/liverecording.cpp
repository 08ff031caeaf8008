#include "liverecording.h"

#include "dataset.h"

LiveRecording::Hold::Hold(LiveRecording* recording) : m_Recording(recording)
{
    if (m_Recording)
        ++m_Recording->m_Holds;
}

LiveRecording::Hold::~Hold()
{
    if (m_Recording && --m_Recording->m_Holds == 0)
        m_Recording->Tell(std::exchange(m_Recording->m_HeldBack, NOTHING));
}

LiveRecording::LiveRecording(std::unique_ptr<DataSet> dataSet) : m_Recording(std::move(dataSet)) {}

void LiveRecording::Tell(Kinds kinds)
{
    if (m_Holds > 0) {
        m_HeldBack |= kinds;
        return;
    }
    if (kinds & ATTRIBUTES)
        emit AttributesChanged();
    if (kinds & LABELS)
        emit LabelsChanged();
    if (kinds & SEGMENTS)
        emit SegmentsChanged();
}
