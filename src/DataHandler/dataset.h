#pragma once

#include "attributetype.h"
#include "columnstore.h"
#include "rowobjects.h"
#include <QHash>
#include <QPair>
#include <QString>
#include <memory>
#include <vector>

/// The one table of a recording: rows are time steps, columns are attributes.
///
/// Values are stored, and best read, by columns. Row objects are views that are made when asked
/// for, and by one thread alone. A derived attribute is added by AddColumn as a whole, or by
/// AddAttribute and DataRow::AddValue on every row, and made known by ComputeRanges. Nothing is
/// emitted: whoever changes the data refreshes the views. Indices are not checked unless stated.
class DataSet
{
public:
    DataSet();
    /// Takes ownership of both lists, which hold count entries each.
    DataSet(int count, QStringList* names, QList<AttributeType>* types);
    ~DataSet();
    DataSet(const DataSet&) = delete;
    DataSet& operator=(const DataSet&) = delete;

    /// Appends a row and takes ownership of it.
    void AddRow(DataRow* row);
    /// Appends a column; the caller then appends one value to every row. Until it has, the
    /// column reads as NaN.
    void AddAttribute(const QString& name, AttributeType type);
    /// Appends a column and one of the values to every row, behind those that the row has: in rows
    /// that lack a value, or have one too many, that is another column. values: one for each row;
    /// where there are neither rows nor attributes, they bring the rows along. The index of the
    /// attribute, -1 and nothing changed when the number of values is another one.
    int AddColumn(const QString& name, AttributeType type, DataColumn&& values);
    /// Appends one value to each row, from the first row on; there may be fewer values than rows.
    void AppendValues(DataColumn&& values) { m_Store.AppendValues(std::move(values)); }
    /// Sets an attribute in all rows that have a value for it. values: one for each row. False and
    /// nothing changed when there is no such attribute or the number of values is another one.
    bool ReplaceColumn(int attribute, DataColumn&& values);
    /// Replaces all rows: one for each value of the columns, which are equally long. The attribute
    /// count becomes their number; names, types and labels are left as they were.
    void TakeColumns(std::vector<DataColumn>&& columns);
    /// Removes a column's name and values. Types, ranges and axis settings are left as they
    /// were: the type list stays long by one, ranges are right again after ComputeRanges.
    void RemoveAttribute(int attribute);
    /// The same by name; does nothing when absent.
    void RemoveAttribute(const QString& name);

    int GetAttributeCount() const { return m_AttributeCount; }
    int GetRowCount() const { return m_Store.GetRowCount(); }
    /// The row stays valid as long as the data set.
    DataRow* GetRow(int row) { return m_Rows.Get(m_Store, row); }
    const DataRow* GetRow(int row) const { return m_Rows.Get(m_Store, row); }

    /// All values of an attribute, NaN where a row lacks one. Holds until rows are added or the
    /// column is replaced or removed; other columns may come and go. Without values when there is
    /// no such attribute.
    ConstSpan<double> GetColumn(int attribute) const;
    /// What GetRow(row)->GetValue(attribute) gives, without making a row object.
    double GetValue(int row, int attribute) const { return m_Store.GetValue(row, attribute); }
    int GetValueCount(int row) const { return m_Store.GetValueCount(row); }
    QString GetRowLabel(int row) const { return m_Store.GetLabels().Get(row); }
    /// Labels all rows with their numbers, from 1 on.
    void NumberRows() { m_Store.GetLabels().NumberRows(GetRowCount()); }

    QString GetAttributeName(int attribute) const { return m_AttributeNames->at(attribute); }
    const QStringList& GetAttributeNames() const { return *m_AttributeNames; }
    /// The first attribute of exactly that name, -1 if absent.
    int GetAttributeIndex(const QString& name) const;
    /// The same, but the likely one where that has the name, too.
    int FindAttribute(const QString& name, int likely) const;
    /// The first attribute of that type code, -1 if absent.
    int GetAttributeIndexByType(AttributeType type) const;
    AttributeType GetAttributeType(int attribute) const
    {
        return m_AttributeTypes->value(attribute, ATTRIBUTE_OTHER);
    }
    /// The first row with that label, -1 if absent.
    int FindRowByLabel(const QString& label) const;
    /// The same, but 0 also when there is none.
    int GetRowIndexByLabel(const QString& label) const;
    /// The index of a row object, -1 if absent.
    int GetRowIndex(const DataRow* row) const { return row ? row->GetRowIn(m_Store) : -1; }

    /// The first row from start on in which attributes a, b and c equal va, vb and vc, and, where
    /// asked for, d equals vd and e equals ve. Equality is exact. Null when there is none.
    DataRow* FindRow(int a, int b, int c, double va, double vb, double vc, int d, double vd,
                     bool useD, int e, double ve, bool useE, int start);

    /// Takes the minimum and maximum of every attribute whose values have changed anew: see
    /// ValueRange.
    void ComputeRanges();
    void UpdateRanges() { ComputeRanges(); }
    /// Ranges as of the last ComputeRanges; the start values for attributes added since.
    float GetRawMax(int attribute) const;
    float GetRawMin(int attribute) const;
    /// The user's axis limit where one is set, else the raw one.
    double GetMaxValue(int attribute) const;
    double GetMinValue(int attribute) const;
    static float GetInitialMin() { return ValueRange::StartMinimum; }
    static float GetInitialMax() { return ValueRange::StartMaximum; }

    /// The user's (minimum, maximum) of an attribute's axis; (0, 0) when none is set.
    QPair<double, double> GetAxisRange(int attribute) const
    {
        return m_AxisRanges.value(attribute);
    }
    const QHash<int, QPair<double, double>>& GetAxisRanges() const { return m_AxisRanges; }
    void SetAxisRanges(const QHash<int, QPair<double, double>>& ranges) { m_AxisRanges = ranges; }
    bool GetZeroLine(int attribute) const { return m_ZeroLines.value(attribute, false); }
    const QHash<int, bool>& GetZeroLines() const { return m_ZeroLines; }
    void SetZeroLines(const QHash<int, bool>& zeroLines) { m_ZeroLines = zeroLines; }

    /// Replaces the names or types; the list is owned here from then on.
    void SetAttributeNames(QStringList* names);
    void SetAttributeTypes(QList<AttributeType>* types);
    void SetAttributeCount(int count);

    /// What a column's blocks come to, for views that look at millions of rows at once. Made when
    /// first asked for, and anew when values of the column have changed: those written through a
    /// row count from ComputeRanges on. The reference holds until then.
    const ColumnSummary& GetColumnSummary(int attribute) const
    {
        return m_Store.GetColumn(attribute).GetSummary();
    }

    /// Differs whenever the values of an attribute differ, and stays with them when the attribute
    /// gets another index: see StoredColumn.
    quint64 GetColumnVersion(int attribute) const
    {
        return m_Store.GetColumn(attribute).GetVersion();
    }

    /// Grows by every change that the data set itself can see: rows, columns, ranges. Caches
    /// over the values compare it. Values written through a row count from ComputeRanges on.
    quint64 GetRevision() const { return m_Revision; }

    /// Samples per second as entered at import.
    int m_SamplingRate = 40;
    /// The name, without folders, of the file it was read from; empty when it was not.
    QString m_SourceName;

private:
    int m_AttributeCount = 0;
    std::vector<float> m_RawMax;
    std::vector<float> m_RawMin;
    QHash<int, QPair<double, double>> m_AxisRanges;
    std::unique_ptr<QStringList> m_AttributeNames;
    // No fewer columns than attributes. Mutable, since row objects are made on demand: reading
    // never changes it.
    mutable ColumnStore m_Store;
    mutable RowObjects m_Rows;
    std::unique_ptr<QList<AttributeType>> m_AttributeTypes;
    QHash<int, bool> m_ZeroLines;
    quint64 m_Revision = 0;
};
