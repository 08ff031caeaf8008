#pragma once

#include "constspan.h"
#include <vector>

class DataSet;
class TextOutput;

/// Writes the names of all attributes, each with separator in front of it.
void WriteAttributeNames(TextOutput& out, const DataSet& data, char separator);

/// Writes rows of a data set, which does not change meanwhile, as far as each has values.
class RowText
{
public:
    RowText(TextOutput& out, const DataSet& data) : m_Out(out), m_Data(data) {}

    /// The row's values with separator between them.
    void Write(int row, char separator, int digits);
    /// The row's label and its values, each value with separator in front of it.
    void WriteLabelled(int row, char separator);

private:
    void read(int row);

    TextOutput& m_Out;
    const DataSet& m_Data;
    std::vector<ConstSpan<double>> m_Columns;
    // Of the row last read.
    std::vector<double> m_Values;
};
