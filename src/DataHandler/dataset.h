#pragma once

#include "attributetype.h"
#include "datarow.h"
#include <QHash>
#include <QPair>
#include <memory>
#include <unordered_map>
#include <vector>

class ColumnSummary;

/// The one table of a recording: rows are time steps, columns are attributes.
///
/// Rows are stored one by one; a derived attribute is added by AddAttribute once and
/// DataRow::AddValue on every row, followed by ComputeRanges. Nothing is emitted: whoever
/// changes the data refreshes the views. Indices are not checked unless stated.
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
    /// Makes room for count rows, when the number is known beforehand.
    void ReserveRows(int count) { m_Rows.reserve(size_t(count)); }
    /// Appends a column; the caller then appends one value to every row. Until it has, the
    /// column reads as NaN.
    void AddAttribute(const QString& name, AttributeType type);
    /// Removes a column's name and values. Types, ranges and axis settings are left as they
    /// were: the type list stays long by one, ranges are right again after ComputeRanges.
    void RemoveAttribute(int attribute);
    /// The same by name; does nothing when absent.
    void RemoveAttribute(const QString& name);

    int GetAttributeCount() const { return m_AttributeCount; }
    int GetRowCount() const { return int(m_Rows.size()); }
    DataRow* GetRow(int row) { return m_Rows[size_t(row)].get(); }
    const DataRow* GetRow(int row) const { return m_Rows[size_t(row)].get(); }

    QString GetAttributeName(int attribute) const { return m_AttributeNames->at(attribute); }
    const QStringList& GetAttributeNames() const { return *m_AttributeNames; }
    /// The first attribute of exactly that name, -1 if absent.
    int GetAttributeIndex(const QString& name) const;
    /// The first attribute of that type code, -1 if absent.
    int GetAttributeIndexByType(AttributeType type) const;
    AttributeType GetAttributeType(int attribute) const
    {
        return m_AttributeTypes->value(attribute, ATTRIBUTE_OTHER);
    }
    /// The first row with that label; 0 also when there is none.
    int GetRowIndexByLabel(const QString& label) const;
    /// The index of a row object, -1 if absent.
    int GetRowIndex(const DataRow* row) const;

    /// The first row from start on in which attributes a, b and c equal va, vb and vc, and, where
    /// asked for, d equals vd and e equals ve. Equality is exact. Null when there is none.
    DataRow* FindRow(int a, int b, int c, double va, double vb, double vc, int d, double vd,
                     bool useD, int e, double ve, bool useE, int start);

    /// Takes the minimum and maximum of every attribute anew, in single precision. NaN changes
    /// nothing. The maximum starts from the smallest positive float, so an attribute without a
    /// positive value keeps 1.1754944e-38: kept, the value axes rely on it.
    void ComputeRanges();
    void UpdateRanges() { ComputeRanges(); }
    /// Ranges as of the last ComputeRanges; the start values for attributes added since.
    float GetRawMax(int attribute) const;
    float GetRawMin(int attribute) const;
    /// The user's axis limit where one is set, else the raw one.
    double GetMaxValue(int attribute) const;
    double GetMinValue(int attribute) const;
    static float GetInitialMin() { return 3.4028235e38F; }
    static float GetInitialMax() { return 1.1754944e-38F; }

    /// The user's (minimum, maximum) of an attribute's axis; (0, 0) when none is set.
    QPair<double, double> GetAxisRange(int attribute) const
    {
        return m_AxisRanges.value(attribute);
    }
    void SetAxisRanges(const QHash<int, QPair<double, double>>& ranges) { m_AxisRanges = ranges; }
    bool GetZeroLine(int attribute) const { return m_ZeroLines.value(attribute, false); }
    void SetZeroLines(const QHash<int, bool>& zeroLines) { m_ZeroLines = zeroLines; }

    /// Replaces the names or types; the list is owned here from then on.
    void SetAttributeNames(QStringList* names);
    void SetAttributeTypes(QList<AttributeType>* types);
    void SetAttributeCount(int count);

    /// One column as an array, for algorithms that walk it more than once.
    std::vector<double> CopyColumn(int attribute) const;

    /// The extremes of a column's blocks, for views that look at millions of rows at once. Made
    /// when first asked for and anew when the revision has changed; the reference holds until
    /// then.
    const ColumnSummary& GetColumnSummary(int attribute) const;

    /// Grows by every change that the data set itself can see: rows, columns, ranges. Caches
    /// over the values compare it. Values written through a row count from ComputeRanges on.
    quint64 GetRevision() const { return m_Revision; }

    /// Samples per second as entered at import.
    int m_SamplingRate = 40;

private:
    void makeRoomInRows(int attributes);

    int m_AttributeCount = 0;
    std::vector<float> m_RawMax;
    std::vector<float> m_RawMin;
    QHash<int, QPair<double, double>> m_AxisRanges;
    std::unique_ptr<QStringList> m_AttributeNames;
    std::vector<std::unique_ptr<DataRow>> m_Rows;
    std::unique_ptr<QList<AttributeType>> m_AttributeTypes;
    QHash<int, bool> m_ZeroLines;
    quint64 m_Revision = 0;
    mutable std::unordered_map<int, std::unique_ptr<const ColumnSummary>> m_Summaries;
    // Every row can be read up to this many values.
    int m_RowCapacity = 0;
};
