#include "datarow.h"

#include <algorithm>

void DataRow::SetLabel(const QString& label)
{
    if (m_Store) {
        m_Store->GetLabels().Set(m_Row, label);
        return;
    }
    looseValues();
    m_Loose->m_Label = label;
}

QString DataRow::GetLabel() const
{
    if (m_Store)
        return m_Store->GetLabels().Get(m_Row);
    return m_Loose ? m_Loose->m_Label : QString();
}

void DataRow::SetValues(const QStringList& texts)
{
    std::vector<double> values(size_t(texts.size()));
    std::transform(texts.begin(), texts.end(), values.begin(),
                   [](const QString& text) { return text.toDouble(); });
    SetValues(values.data(), int(values.size()));
}

void DataRow::SetValues(const double* values, int count)
{
    if (m_Store)
        m_Store->SetValues(m_Row, {values, count});
    else
        looseValues().assign(values, values + count);
}

void DataRow::AddValue(double value)
{
    if (m_Store)
        m_Store->AddValue(m_Row, value);
    else
        looseValues().push_back(value);
}

void DataRow::SetValue(int attribute, double value)
{
    if (m_Store)
        m_Store->SetValue(m_Row, attribute, value);
    else if (attribute >= 0 && attribute < GetValueCount())
        looseValues()[size_t(attribute)] = value;
}

int DataRow::GetValueCount() const
{
    if (m_Store)
        return m_Store->GetValueCount(m_Row);
    return m_Loose ? int(m_Loose->m_Values.size()) : 0;
}

void DataRow::RemoveValue(int attribute)
{
    if (m_Store)
        m_Store->RemoveValue(m_Row, attribute);
    else if (attribute >= 0 && attribute < GetValueCount())
        looseValues().erase(looseValues().begin() + attribute);
}

void DataRow::LookAt(ColumnStore& store, int row)
{
    m_Store = &store;
    m_Row = row;
}

void DataRow::MoveTo(ColumnStore& store)
{
    const QString label = GetLabel();
    store.AddRow(looseValues());
    LookAt(store, store.GetRowCount() - 1);
    m_Loose.reset();
    SetLabel(label);
}

double DataRow::looseValue(int attribute) const
{
    const bool isThere = attribute >= 0 && attribute < GetValueCount();
    return isThere ? m_Loose->m_Values[size_t(attribute)] : ColumnStore::Missing;
}

std::vector<double>& DataRow::looseValues()
{
    if (!m_Loose)
        m_Loose = std::make_unique<Loose>();
    return m_Loose->m_Values;
}
