#pragma once

#include "attributetype.h"
#include "datacolumn.h"
#include <QHash>
#include <QPair>
#include <QStringList>
#include <optional>
#include <vector>

class DataSet;

/// A column that becomes an attribute.
struct NamedColumn {
    QString m_Name;
    DataColumn m_Values;
    AttributeType m_Type = ATTRIBUTE_OTHER;
};

/// The attributes of a data set as they come and go. What belongs to an attribute beside its
/// values, its type, the limits of its axis and its zero line, goes and comes back with its name:
/// an attribute that is removed and added again is shown as it was.
class AttributeColumns
{
public:
    /// dataSet: not owned.
    explicit AttributeColumns(DataSet* dataSet) : m_DataSet(dataSet) {}

    /// Appends the columns, which hold one value for each row, and takes the ranges anew. False,
    /// and nothing added, when one of them has another length.
    bool Add(std::vector<NamedColumn> columns);
    /// The same, after the removal of the attributes that have these names.
    bool Replace(std::vector<NamedColumn> columns);
    /// Removes the first attribute of each name; names that no attribute has are passed over.
    void Remove(const QStringList& names);

private:
    struct AxisSettings {
        std::optional<QPair<double, double>> m_Range;
        bool m_HasZeroLine = false;
    };

    bool fits(const std::vector<NamedColumn>& columns) const;
    void remove(int attribute);
    void restoreAxis(int attribute);

    DataSet* m_DataSet;
    // Of attributes that are gone.
    QHash<QString, AxisSettings> m_Remembered;
};
