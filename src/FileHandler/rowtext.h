#pragma once

class DataRow;
class DataSet;
class TextOutput;

/// Writes the names of all attributes, each with separator in front of it.
void WriteAttributeNames(TextOutput& out, const DataSet& data, char separator);

/// Writes a row's label and its values, each value with separator in front of it.
void WriteLabelledRow(TextOutput& out, const DataRow& row, char separator);
