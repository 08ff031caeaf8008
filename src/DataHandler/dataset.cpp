#include "dataset.h"

#include "columnsummary.h"
#include <algorithm>

DataSet::DataSet()
    : m_AttributeNames(std::make_unique<QStringList>()),
      m_AttributeTypes(std::make_unique<QList<AttributeType>>())
{
}

DataSet::DataSet(int count, QStringList* names, QList<AttributeType>* types)
    : m_AttributeCount(count), m_AttributeNames(names), m_AttributeTypes(types),
      m_RowCapacity(count)
{
}

DataSet::~DataSet() = default;

void DataSet::AddRow(DataRow* row)
{
    m_Rows.emplace_back(row);
    row->Reserve(m_AttributeCount);
    m_RowCapacity = m_AttributeCount;
    ++m_Revision;
}

void DataSet::AddAttribute(const QString& name, AttributeType type)
{
    m_AttributeNames->append(name);
    m_AttributeTypes->append(type);
    makeRoomInRows(m_AttributeCount + 1);
    ++m_AttributeCount;
    ++m_Revision;
}

void DataSet::RemoveAttribute(int attribute)
{
    if (attribute >= 0 && attribute < m_AttributeNames->size())
        m_AttributeNames->removeAt(attribute);
    for (const auto& row : m_Rows)
        row->RemoveValue(attribute);
    m_AttributeCount = m_AttributeNames->size();
    ++m_Revision;
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

int DataSet::GetAttributeIndexByType(AttributeType type) const
{
    return m_AttributeTypes->indexOf(type);
}

int DataSet::GetRowIndexByLabel(const QString& label) const
{
    const auto found = std::find_if(m_Rows.begin(), m_Rows.end(),
                                    [&](const auto& row) { return row->HasLabel(label); });
    return found == m_Rows.end() ? 0 : int(found - m_Rows.begin());
}

int DataSet::GetRowIndex(const DataRow* row) const
{
    const auto found = std::find_if(m_Rows.begin(), m_Rows.end(),
                                    [=](const auto& own) { return own.get() == row; });
    return found == m_Rows.end() ? -1 : int(found - m_Rows.begin());
}

DataRow* DataSet::FindRow(int a, int b, int c, double va, double vb, double vc, int d, double vd,
                          bool useD, int e, double ve, bool useE, int start)
{
    for (int i = std::max(start, 0); i < GetRowCount(); ++i) {
        DataRow* row = GetRow(i);
        if (row->GetValue(a) == va && row->GetValue(b) == vb && row->GetValue(c) == vc &&
            (!useD || row->GetValue(d) == vd) && (!useE || row->GetValue(e) == ve))
            return row;
    }
    return nullptr;
}

void DataSet::ComputeRanges()
{
    // Narrowing keeps order, so the extreme doubles narrowed once are the extremes of the
    // narrowed values.
    const auto count = size_t(m_AttributeCount);
    std::vector<double> low(count, GetInitialMin());
    std::vector<double> high(count, GetInitialMax());
    double* lows = low.data();
    double* highs = high.data();
    for (const auto& row : m_Rows) {
        if (count == 0)
            break;
        const double* values = row->GetValues();
        for (size_t j = 0; j < count; ++j) {
            const double value = values[j];
            lows[j] = value < lows[j] ? value : lows[j];
            highs[j] = value > highs[j] ? value : highs[j];
        }
    }
    const auto narrow = [](double value) { return float(value); };
    m_RawMin.resize(count);
    m_RawMax.resize(count);
    std::transform(low.begin(), low.end(), m_RawMin.begin(), narrow);
    std::transform(high.begin(), high.end(), m_RawMax.begin(), narrow);
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
    makeRoomInRows(count);
    m_AttributeCount = count;
}

std::vector<double> DataSet::CopyColumn(int attribute) const
{
    std::vector<double> column(m_Rows.size());
    std::transform(m_Rows.begin(), m_Rows.end(), column.begin(),
                   [=](const auto& row) { return row->GetValue(attribute); });
    return column;
}

const ColumnSummary& DataSet::GetColumnSummary(int attribute) const
{
    auto& summary = m_Summaries[attribute];
    if (!summary || summary->GetRevision() != m_Revision)
        summary = std::make_unique<const ColumnSummary>(*this, attribute);
    return *summary;
}

void DataSet::makeRoomInRows(int attributes)
{
    if (attributes <= m_RowCapacity || m_Rows.empty())
        return;
    // A quarter more than asked for: further columns then cost no new memory for a while.
    m_RowCapacity = attributes + attributes / 4 + 1;
    for (const auto& row : m_Rows)
        row->Reserve(m_RowCapacity);
}
