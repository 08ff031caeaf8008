#include "axisrangebox.h"

#include <algorithm>
#include <cmath>

namespace
{

// Limits come from single precision values, which carry no more.
constexpr int DIGITS = 7;

} // namespace

AxisRangeBox::AxisRangeBox(double limit, QWidget* parent) : QDoubleSpinBox(parent)
{
    setRange(-100000, 100000);
    setDecimals(6);
    // The size hint only thinks of the ends of the range.
    const QFontMetrics metrics = fontMetrics();
    setMinimumWidth(sizeHint().width() + metrics.horizontalAdvance(QStringLiteral("-0.000000")) -
                    metrics.horizontalAdvance(textFromValue(minimum())));
    SetLimit(limit);
}

void AxisRangeBox::SetLimit(double limit)
{
    // The value is what the text says, so that reading the text again changes nothing.
    setValue(limit);
    setValue(valueFromText(cleanText()));
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
    const int magnitude = value == 0 ? 0 : int(std::floor(std::log10(std::abs(value))));
    QLocale numbers = locale();
    numbers.setNumberOptions(QLocale::OmitGroupSeparator);
    QString text = numbers.toString(value, 'f', std::clamp(DIGITS - 1 - magnitude, 0, decimals()));
    const QChar point = numbers.decimalPoint();
    if (text.contains(point)) {
        while (text.endsWith(QLatin1Char('0')))
            text.chop(1);
        if (text.endsWith(point))
            text.chop(1);
    }
    return text;
}
