#pragma once

#include "cutsegment.h"
#include <memory>

class CutCollection;
class DataSet;
class QPainter;
class TimeAxis;
class VerticalAxis;

/// All segments of one state in a row, each in heat colours, with a gap for every other segment.
class CollectionAmplitudeLine
{
public:
    CollectionAmplitudeLine(int attribute, CutSegment::SEGMENT_STATE state);
    ~CollectionAmplitudeLine();

    void SetDataSet(DataSet* data);
    void SetCutCollection(CutCollection* cuts);
    void SetWidth(int width);
    void SetHeight(int height);
    const TimeAxis* GetTimeAxis() const { return m_TimeAxis.get(); }

    void Paint(QPainter& painter) const;

private:
    void rebuildAxes();

    int m_AttributeId;
    int m_Width = 0;
    int m_Height = 0;
    DataSet* m_DataSet = nullptr;
    CutCollection* m_CutCollection = nullptr;
    CutSegment::SEGMENT_STATE m_State;
    std::unique_ptr<VerticalAxis> m_VerticalAxis;
    std::unique_ptr<TimeAxis> m_TimeAxis;
};
