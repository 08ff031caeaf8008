#include "rowtext.h"

#include "dataset.h"
#include "textoutput.h"

void WriteAttributeNames(TextOutput& out, const DataSet& data, char separator)
{
    for (const QString& name : data.GetAttributeNames())
        out << separator << name;
}

void WriteLabelledRow(TextOutput& out, const DataRow& row, char separator)
{
    out << row.GetLabel();
    out.Numbers(row.GetValues(), row.GetValueCount(), separator);
}
