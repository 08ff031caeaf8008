#include "recording.h"

#include "dataset.h"

Recording::Recording(std::unique_ptr<DataSet> dataSet)
    : m_DataSet(std::move(dataSet)), m_Columns(m_DataSet.get())
{
    m_DataSet->ComputeRanges();
    m_CutCollection.InsertCut(0, m_DataSet->GetRowCount(), CutSegment::SEGMENT_CUT);
}

Recording::~Recording() = default;
