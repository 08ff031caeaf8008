#include "attributecolumns.h"

#include "dataset.h"
#include <algorithm>

namespace
{

/// Without the entry of an index; those behind it belong to the index before theirs.
template <class Value>
QHash<int, Value> without(const QHash<int, Value>& entries, int index)
{
    QHash<int, Value> left;
    for (auto entry = entries.begin(); entry != entries.end(); ++entry) {
        if (entry.key() != index)
            left.insert(entry.key() - (entry.key() > index ? 1 : 0), entry.value());
    }
    return left;
}

} // namespace

bool AttributeColumns::fits(const std::vector<NamedColumn>& columns) const
{
    return std::all_of(columns.begin(), columns.end(), [this](const NamedColumn& column) {
        return column.m_Values.size() == m_DataSet->GetRowCount();
    });
}

bool AttributeColumns::Add(std::vector<NamedColumn> columns)
{
    if (!fits(columns))
        return false;
    for (NamedColumn& column : columns)
        restoreAxis(m_DataSet->AddColumn(column.m_Name, column.m_Type, std::move(column.m_Values)));
    m_DataSet->ComputeRanges();
    return true;
}

bool AttributeColumns::Replace(std::vector<NamedColumn> columns)
{
    if (!fits(columns))
        return false;
    QStringList names;
    for (const NamedColumn& column : columns)
        names.append(column.m_Name);
    Remove(names);
    return Add(std::move(columns));
}

void AttributeColumns::Remove(const QStringList& names)
{
    for (const QString& name : names) {
        const int attribute = m_DataSet->GetAttributeIndex(name);
        if (attribute != -1)
            remove(attribute);
    }
    m_DataSet->ComputeRanges();
}

void AttributeColumns::remove(int attribute)
{
    const auto ranges = m_DataSet->GetAxisRanges();
    const auto zeroLines = m_DataSet->GetZeroLines();
    AxisSettings& axis = m_Remembered[m_DataSet->GetAttributeName(attribute)];
    axis = {};
    if (ranges.contains(attribute))
        axis.m_Range = ranges.value(attribute);
    axis.m_HasZeroLine = zeroLines.value(attribute);
    m_DataSet->SetAxisRanges(without(ranges, attribute));
    m_DataSet->SetZeroLines(without(zeroLines, attribute));

    auto* types = new QList<AttributeType>;
    for (int i = 0; i < m_DataSet->GetAttributeCount(); ++i) {
        if (i != attribute)
            types->append(m_DataSet->GetAttributeType(i));
    }
    m_DataSet->RemoveAttribute(attribute);
    m_DataSet->SetAttributeTypes(types);
}

void AttributeColumns::restoreAxis(int attribute)
{
    const AxisSettings axis = m_Remembered.take(m_DataSet->GetAttributeName(attribute));
    if (axis.m_Range) {
        auto ranges = m_DataSet->GetAxisRanges();
        ranges.insert(attribute, *axis.m_Range);
        m_DataSet->SetAxisRanges(ranges);
    }
    if (axis.m_HasZeroLine) {
        auto zeroLines = m_DataSet->GetZeroLines();
        zeroLines.insert(attribute, true);
        m_DataSet->SetZeroLines(zeroLines);
    }
}
