#include "derivedcolumn.h"

void AppendColumn(DataSet& data, const Column& column)
{
    for (size_t row = 0; row < column.size(); ++row)
        data.GetRow(int(row))->AddValue(column[row]);
}

void AppendColumns(DataSet& data, const std::vector<Column>& columns)
{
    for (int row = 0; row < data.GetRowCount(); ++row) {
        for (const Column& column : columns)
            data.GetRow(row)->AddValue(column[size_t(row)]);
    }
}
