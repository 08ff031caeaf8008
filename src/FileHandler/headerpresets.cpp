#include "headerpresets.h"

namespace
{

void appendAxes(ColumnHeaders& headers, int firstName, AttributeType firstType)
{
    for (int axis = 0; axis < 3; ++axis)
        headers.Append(StandardAttributeName(firstName + axis), firstType + axis);
}

void appendSensors(ColumnHeaders& headers)
{
    appendAxes(headers, STANDARD_ACC_X, ATTRIBUTE_ACC_X);
    appendAxes(headers, STANDARD_COMP_X, ATTRIBUTE_MAG_X);
}

void appendPressure(ColumnHeaders& headers)
{
    headers.Append(StandardAttributeName(STANDARD_TG_PRESSURE), ATTRIBUTE_PRESSURE);
}

QString columnName(int number)
{
    return QStringLiteral("Col_") + QString::number(number);
}

ColumnHeaders plainHeaders(int columns)
{
    ColumnHeaders headers;
    for (int number = 1; number <= columns; ++number)
        headers.Append(columnName(number), ATTRIBUTE_OTHER);
    return headers;
}

// The columns a preset knows by name; those beyond the table's width are cut off later.
ColumnHeaders namedColumns(int preset)
{
    ColumnHeaders headers;
    if (preset == 0)
        headers.Append(QStringLiteral("Date"), ATTRIBUTE_DATE);
    if (preset == 0 || preset == 1)
        headers.Append(QStringLiteral("Time"), ATTRIBUTE_TIME);
    if (preset == 3) {
        appendAxes(headers, STANDARD_ACC_X, ATTRIBUTE_ACC_X);
        return headers;
    }
    appendSensors(headers);
    appendPressure(headers);
    if (preset == 2) {
        for (int name : {STANDARD_TG_UNKNOWN, STANDARD_TG_SEC, STANDARD_TG_MIN, STANDARD_TG_HOUR})
            headers.Append(StandardAttributeName(name), ATTRIBUTE_OTHER);
    }
    return headers;
}

} // namespace

ColumnHeaders PresetHeaders(int preset, int columns)
{
    constexpr int minimumColumns[] = {9, 8, 6, 3};
    if (preset < 0 || preset > 3 || columns < minimumColumns[preset])
        return plainHeaders(columns);
    ColumnHeaders headers = namedColumns(preset);
    headers.m_Names = headers.m_Names.mid(0, columns);
    headers.m_Types = headers.m_Types.mid(0, columns);
    for (int column = headers.m_Names.size(); column < columns; ++column)
        headers.Append(columnName(column), ATTRIBUTE_OTHER);
    return headers;
}

QStringList LoggerColumnNames(int columns)
{
    ColumnHeaders headers;
    if (columns < 12)
        return plainHeaders(columns).m_Names;
    appendSensors(headers);
    appendPressure(headers);
    for (int name : {STANDARD_TG_UNKNOWN, STANDARD_TG_SEC, STANDARD_TG_MIN, STANDARD_TG_HOUR,
                     STANDARD_TG_UNKNOWN})
        headers.Append(StandardAttributeName(name), ATTRIBUTE_OTHER);
    for (int number = 13; number <= columns; ++number)
        headers.Append(StandardAttributeName(STANDARD_TG_UNKNOWN) + QString::number(number),
                       ATTRIBUTE_OTHER);
    return headers.m_Names;
}
