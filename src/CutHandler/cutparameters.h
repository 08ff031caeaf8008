#pragma once

/// What the user chooses for each way of automatic cutting. Attributes are column indices.

struct PipCutParameters {
    int m_Attribute = 0;
    int m_Measure = 0;  ///< a PIPExtractor::DistanceMeasure
    int m_Stopping = 0; ///< a PIPExtractor::ParameterOptions
    double m_MinimumDistance = 0.0;
    int m_Partitions = 0;
};

struct PeriodicCutParameters {
    int m_CutSize = 0; ///< in rows
};

struct LocalVarianceParameters {
    int m_X = 0;
    int m_Y = 0;
    int m_Z = 0;
    int m_SmoothingWindow = 10; ///< in rows, as the next two
    /// From one smoothing window's start to the next one's, so a larger one overlaps less.
    int m_SmoothingOverlap = 5;
    int m_VarianceWindow = 100;
    double m_Threshold = double(0.1F);
};

struct MinimaMaximaParameters {
    int m_Attribute = 0;
    double m_Persistence = 0.0;
};
