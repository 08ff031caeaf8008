#pragma once

#include "attributetype.h"
#include <QList>
#include <QStringList>

/// Names and types of a table's columns, in column order; both lists are equally long.
struct ColumnHeaders {
    QStringList m_Names;
    QList<AttributeType> m_Types;

    void Append(const QString& name, AttributeType type)
    {
        m_Names.append(name);
        m_Types.append(type);
    }
};

/// The headers of import preset 0 to 4 ("Preset 1" to "Preset 5") for a table of that many
/// columns. A table too narrow for its preset, and any other preset number, gets plain numbered
/// names. Plain names count from 1, the numbered names behind a preset's own go by the column
/// index from 0: that is how users tell the two apart.
ColumnHeaders PresetHeaders(int preset, int columns);

/// The names that the logger page gives: the logger's own columns for a table of twelve columns
/// or more, plain numbered names otherwise.
QStringList LoggerColumnNames(int columns);
