#include "dataset.h"

#include <algorithm>

DataSet::DataSet()
    : m_AttributeNames(std::make_unique<QStringList>()),
      m_AttributeTypes(std::make_unique<QList<AttributeType>>())
{
}

DataSet::DataSet(int count, QStringList* names, QList<AttributeType>* types)
    : m_AttributeNames(names), m_AttributeTypes(types)
{
    SetAttributeCount(count);
}

DataSet::~DataSet() = default;

void DataSet::AddRow(DataRow* row)
{
    std::unique_ptr<DataRow> object(row);
    row->MoveTo(m_Store);
    m_Rows.Bring(std::move(object), GetRowCount() - 1);
    ++m_Revision;
}

void DataSet::AddAttribute(const QString& name, AttributeType type)
{
    m_AttributeNames->append(name);
    m_AttributeTypes->append(type);
    SetAttributeCount(m_AttributeCount + 1);
}

int DataSet::AddColumn(const QString& name, AttributeType type, DataColumn&& values)
{
    if (m_AttributeCount == 0 && GetRowCount() == 0) {
        std::vector<DataColumn> columns;
        columns.push_back(std::move(values));
        m_Store.TakeColumns(std::move(columns));
    } else if (values.size() == GetRowCount()) {
        m_Store.AppendValues(std::move(values));
    } else {
        return -1;
    }
    AddAttribute(name, type);
    return m_AttributeCount - 1;
}

bool DataSet::ReplaceColumn(int attribute, DataColumn&& values)
{
    if (attribute < 0 || attribute >= m_AttributeCount || values.size() != GetRowCount())
        return false;
    m_Store.ReplaceValues(attribute, std::move(values));
    ++m_Revision;
    return true;
}

void DataSet::TakeColumns(std::vector<DataColumn>&& columns)
{
    const auto count = int(columns.size());
    m_Store.TakeColumns(std::move(columns));
    SetAttributeCount(count);
}

void DataSet::RemoveAttribute(int attribute)
{
    if (attribute >= 0 && attribute < m_AttributeNames->size())
        m_AttributeNames->removeAt(attribute);
    m_Store.RemoveColumn(attribute);
    SetAttributeCount(m_AttributeNames->size());
}

void DataSet::RemoveAttribute(const QString& name)
{
    const int attribute = GetAttributeIndex(name);
    if (attribute != -1)
        RemoveAttribute(attribute);
}

int DataSet::GetAttributeIndex(const QString& name) const
{
    return m_AttributeNames->indexOf(name);
}

int DataSet::FindAttribute(const QString& name, int likely) const
{
    const bool isLikely =
        likely >= 0 && likely < m_AttributeNames->size() && m_AttributeNames->at(likely) == name;
    return isLikely ? likely : GetAttributeIndex(name);
}

int DataSet::GetAttributeIndexByType(AttributeType type) const
{
    return m_AttributeTypes->indexOf(type);
}

ConstSpan<double> DataSet::GetColumn(int attribute) const
{
    if (!m_Store.HasColumn(attribute))
        return {};
    return m_Store.GetColumn(attribute).GetValues();
}

int DataSet::FindRowByLabel(const QString& label) const
{
    return m_Store.GetLabels().Find(label, GetRowCount());
}

int DataSet::GetRowIndexByLabel(const QString& label) const
{
    return std::max(FindRowByLabel(label), 0);
}

DataRow* DataSet::FindRow(int a, int b, int c, double va, double vb, double vc, int d, double vd,
                          bool useD, int e, double ve, bool useE, int start)
{
    const ConstSpan<double> first = GetColumn(a);
    const ConstSpan<double> second = GetColumn(b);
    const ConstSpan<double> third = GetColumn(c);
    if (first.empty() || second.empty() || third.empty())
        return nullptr;
    for (int row = std::max(start, 0); row < GetRowCount(); ++row) {
        if (first[row] == va && second[row] == vb && third[row] == vc &&
            (!useD || GetValue(row, d) == vd) && (!useE || GetValue(row, e) == ve))
            return GetRow(row);
    }
    return nullptr;
}

void DataSet::ComputeRanges()
{
    m_RawMin.resize(size_t(m_AttributeCount));
    m_RawMax.resize(size_t(m_AttributeCount));
    // Taking a range waits for the memory, which serves several processors at once.
#pragma omp parallel for schedule(dynamic)
    for (int attribute = 0; attribute < m_AttributeCount; ++attribute) {
        StoredColumn& column = m_Store.GetColumn(attribute);
        column.Update();
        m_RawMin[size_t(attribute)] = column.GetRange().m_Minimum;
        m_RawMax[size_t(attribute)] = column.GetRange().m_Maximum;
    }
    ++m_Revision;
}

float DataSet::GetRawMax(int attribute) const
{
    return size_t(attribute) < m_RawMax.size() ? m_RawMax[size_t(attribute)] : GetInitialMax();
}

float DataSet::GetRawMin(int attribute) const
{
    return size_t(attribute) < m_RawMin.size() ? m_RawMin[size_t(attribute)] : GetInitialMin();
}

double DataSet::GetMaxValue(int attribute) const
{
    const auto range = m_AxisRanges.constFind(attribute);
    return range == m_AxisRanges.constEnd() ? double(GetRawMax(attribute)) : range->second;
}

double DataSet::GetMinValue(int attribute) const
{
    const auto range = m_AxisRanges.constFind(attribute);
    return range == m_AxisRanges.constEnd() ? double(GetRawMin(attribute)) : range->first;
}

void DataSet::SetAttributeNames(QStringList* names)
{
    if (names != m_AttributeNames.get())
        m_AttributeNames.reset(names);
}

void DataSet::SetAttributeTypes(QList<AttributeType>* types)
{
    if (types != m_AttributeTypes.get())
        m_AttributeTypes.reset(types);
}

void DataSet::SetAttributeCount(int count)
{
    m_AttributeCount = count;
    m_Store.Widen(count);
    ++m_Revision;
}
