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
    data.RemoveAttribute(column);
}

} // namespace

void FinishImport(DataSet& data, ColumnHeaders& headers, int samplingRate)
{
    data.SetAttributeNames(new QStringList(headers.m_Names));
    removeFirstColumnOfType(data, headers, ATTRIBUTE_TIME);
    removeFirstColumnOfType(data, headers, ATTRIBUTE_DATE);
    data.NumberRows();
    data.SetAttributeTypes(new QList<AttributeType>(headers.m_Types));
    data.m_SamplingRate = samplingRate;
}
