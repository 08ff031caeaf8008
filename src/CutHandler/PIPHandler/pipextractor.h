#pragma once

#include "pipsegment.h"
#include "progress.h"
#include <vector>

class DataSet;
class PIPEvaluator;

/// Splits a curve, again and again, at its perceptually important points: where it departs most
/// from the straight lines between the points found so far (Chung, Fu, Luk, Ng 2001, IJCAI Workshop
/// on Learning from Temporal and Spatial Data).
class PIPExtractor
{
public:
    enum DistanceMeasure : int {
        EUCLIDEAN_DISTANCE = 0,
        VERTICAL_DISTANCE = 1, ///< along the normal of the line, whatever the name says
        PERPENDICULAR_DISTANCE = 2
    };
    /// What ends the splitting.
    enum ParameterOptions : int {
        NUMBER_PARTITIONS = 0,
        MINIMUM_DISTANCE = 1,
        PARTITION_AND_DISTANCE = 2
    };
    /// The texts for the user; "Error" for any other value.
    static QString GetMeasureName(int measure);
    static QString GetParameterName(int option);

    void setDataSet(const DataSet* dataSet) { m_DataSet = dataSet; }
    /// One of DistanceMeasure; with any other all distances are 0.
    void setMeasure(int measure) { m_Measure = measure; }

    /// Splits an attribute of the data set; stopping is one of ParameterOptions. The first split
    /// is always made, except that NUMBER_PARTITIONS also obeys minimumDistance. Ends early when
    /// no segment has a row left to be split at. No segments without rows or such an attribute.
    void extract(int attribute, int partitions, double minimumDistance, int stopping)
    {
        extract(attribute, partitions, minimumDistance, stopping, NoProgress::Shared());
    }
    /// The same, but false and no segments when the progress asked to stop.
    bool extract(int attribute, int partitions, double minimumDistance, int stopping,
                 Progress& progress);
    /// In row order; neighbours share a row. A split at a segment's first row leaves a segment
    /// of that one row.
    const std::vector<PIPSegment>& getSegments() const { return m_Segments; }

    /// Whether to go on after iterations splits, the last one at distance. Up to partitions
    /// counts, so there is one split more than that.
    bool parameterConditionMeet(ParameterOptions option, double distance, int iterations,
                                int partitions, double minimumDistance) const;

private:
    void splitBest(PIPEvaluator& evaluator);

    const DataSet* m_DataSet = nullptr;
    int m_Measure = EUCLIDEAN_DISTANCE;
    // While splitting, a heap with the next segment to split on top.
    std::vector<PIPSegment> m_Segments;
};
