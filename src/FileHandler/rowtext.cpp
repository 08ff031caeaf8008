#include "rowtext.h"

#include "dataset.h"
#include "textoutput.h"

void WriteAttributeNames(TextOutput& out, const DataSet& data, char separator)
{
    for (const QString& name : data.GetAttributeNames())
        out << separator << name;
}

void RowText::Write(int row, char separator, int digits)
{
    read(row);
    if (!m_Values.empty())
        m_Out.Number(m_Values.front(), digits)
            .Numbers(m_Values.data() + 1, int(m_Values.size()) - 1, separator, digits);
}

void RowText::WriteLabelled(int row, char separator)
{
    read(row);
    m_Out << m_Data.GetRowLabel(row);
    m_Out.Numbers(m_Values.data(), int(m_Values.size()), separator);
}

void RowText::read(int row)
{
    m_Values.resize(size_t(m_Data.GetValueCount(row)));
    while (m_Columns.size() < m_Values.size())
        m_Columns.push_back(m_Data.GetColumn(int(m_Columns.size())));
    for (size_t i = 0; i < m_Values.size(); ++i)
        m_Values[i] = m_Columns[i][row];
}
