#pragma once

#include <vector>

class DataSet;

/// Rows from to to - 1 of an attribute, which exist, as an array. All signal processing reads the
/// table here.
void ReadRows(const DataSet& data, int attribute, int from, int to, double* values);

/// The rows of an attribute as an array, of which only the part in use is kept: the table is read
/// once, in order, and what is read stays in the processor's cache. Values that are no finite
/// numbers are bridged by the last one before, those in front by the first behind: running sums
/// would not get rid of them.
class RowWindow
{
public:
    /// Rows start to end - 1, which exist, as does the attribute.
    RowWindow(const DataSet& data, int attribute, int start, int end);

    int GetLength() const { return m_End - m_Start; }
    /// The values of rows from to to - 1, counted from start; neither lies before that of the
    /// call before. Good until the next call.
    const double* Get(int from, int to);

private:
    void bridgeGaps(double* values, int count);

    const DataSet& m_Data;
    int m_Attribute;
    int m_Start;
    int m_End;
    // The rows in use, whose values stand at the front.
    int m_From = 0;
    int m_To = 0;
    double m_LastNumber = 0.0;
    std::vector<double> m_Values;
};
