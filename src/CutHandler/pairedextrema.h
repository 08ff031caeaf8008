#pragma once

/// A minimum and a maximum that belong together, and the difference of their values.
struct PairedExtrema {
    int m_MinIndex = 0;
    int m_MaxIndex = 0;
    float m_Persistence = 0.0F;
};
