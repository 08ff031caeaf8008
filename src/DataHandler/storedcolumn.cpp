#include "storedcolumn.h"

#include <atomic>

DataColumn& StoredColumn::ChangeValues()
{
    m_HasChanged = true;
    m_Summary.reset();
    return m_Values;
}

void StoredColumn::Update()
{
    if (!m_HasChanged)
        return;
    m_Range = ComputeValueRange(m_Values);
    m_Summary.reset();
    m_Version = nextVersion();
    m_HasChanged = false;
}

quint64 StoredColumn::nextVersion()
{
    static std::atomic<quint64> version = 0;
    return ++version;
}

const ColumnSummary& StoredColumn::GetSummary() const
{
    if (!m_Summary)
        m_Summary = std::make_unique<const ColumnSummary>(m_Values);
    return *m_Summary;
}
