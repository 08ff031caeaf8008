#pragma once

class DataSet;
class TextOutput;

/// Writes the names of all attributes, each with separator in front of it.
void WriteAttributeNames(TextOutput& out, const DataSet& data, char separator);

/// Writes a row's label and the values that it has, each value with separator in front of it.
void WriteLabelledRow(TextOutput& out, const DataSet& data, int row, char separator);
