#include "rowtext.h"

#include "dataset.h"
#include "textoutput.h"

void WriteAttributeNames(TextOutput& out, const DataSet& data, char separator)
{
    for (const QString& name : data.GetAttributeNames())
        out << separator << name;
}

void WriteLabelledRow(TextOutput& out, const DataSet& data, int row, char separator)
{
    out << data.GetRowLabel(row);
    const int count = data.GetValueCount(row);
    for (int i = 0; i < count; ++i)
        (out << separator).Number(data.GetValue(row, i));
}
