#include "rowlabel.h"

static_assert(sizeof(quintptr) >= 8, "a row number and its mark need more than 32 bits");

void RowLabel::SetText(const QString& text)
{
    auto* copy = text.isEmpty() ? nullptr : new QString(text);
    Clear();
    m_Tagged = reinterpret_cast<quintptr>(copy);
}

void RowLabel::SetNumber(int number)
{
    Clear();
    m_Tagged = (quintptr(number) << 1) | 1U;
}

QString RowLabel::ToString() const
{
    if (isNumber())
        return QString::number(m_Tagged >> 1);
    return m_Tagged ? *text() : QString();
}

bool RowLabel::Equals(const QString& other) const
{
    if (isNumber())
        return ToString() == other;
    return m_Tagged ? *text() == other : other.isEmpty();
}

void RowLabel::Clear()
{
    if (!isNumber())
        delete text();
    m_Tagged = 0;
}
