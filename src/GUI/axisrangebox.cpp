#include "axisrangebox.h"

AxisRangeBox::AxisRangeBox(double limit, QWidget* parent) : QDoubleSpinBox(parent)
{
    setRange(-100000, 100000);
    setDecimals(6);
    SetLimit(limit);
}

void AxisRangeBox::SetLimit(double limit)
{
    setValue(limit);
    m_Exact = limit;
    m_Shown = value();
}

double AxisRangeBox::GetLimit() const
{
    return IsEdited() ? value() : m_Exact;
}

bool AxisRangeBox::IsEdited() const
{
    return value() != m_Shown;
}

QString AxisRangeBox::textFromValue(double value) const
{
    QString text = QDoubleSpinBox::textFromValue(value);
    const QChar point = locale().decimalPoint();
    if (text.contains(point)) {
        while (text.endsWith(QLatin1Char('0')))
            text.chop(1);
        if (text.endsWith(point))
            text.chop(1);
    }
    return text;
}
