#include "importfinish.h"

#include "dataset.h"

namespace
{

void removeFirstColumnOfType(DataSet& data, ColumnHeaders& headers, AttributeType type)
{
    const int column = headers.m_Types.indexOf(type);
    if (column == -1)
        return;
    headers.m_Types.removeAt(column);
    headers.m_Names.removeAt(column);
    for (int row = 0; row < data.GetRowCount(); ++row)
        data.GetRow(row)->RemoveValue(column);
    data.SetAttributeCount(data.GetRow(0)->GetValueCount());
}

} // namespace

void FinishImport(DataSet& data, ColumnHeaders& headers, int samplingRate)
{
    removeFirstColumnOfType(data, headers, ATTRIBUTE_TIME);
    removeFirstColumnOfType(data, headers, ATTRIBUTE_DATE);
    for (int row = 0; row < data.GetRowCount(); ++row)
        data.GetRow(row)->SetNumberLabel(row + 1);
    data.SetAttributeNames(new QStringList(headers.m_Names));
    data.SetAttributeTypes(new QList<AttributeType>(headers.m_Types));
    data.m_SamplingRate = samplingRate;
}
