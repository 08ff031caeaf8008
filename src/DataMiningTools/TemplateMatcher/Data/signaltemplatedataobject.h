#pragma once

#include <QString>
#include <vector>

class DataSet;

/// One stored signal of a template, from one attribute: a row of "signal_template".
class SignalTemplateDataObject
{
public:
    SignalTemplateDataObject() = default;
    SignalTemplateDataObject(const SignalTemplateDataObject&) = delete;
    SignalTemplateDataObject& operator=(const SignalTemplateDataObject&) = delete;

    /// Stores this as a new row; the new id, or -1.
    int InsertSignal();

    /// Copies rows start to end - 1 of an attribute. False, and nothing changed, for a negative
    /// attribute and for less than one row.
    bool SetSignal(DataSet* dataSet, int attribute, int start, int end);
    /// Copies length values.
    void SetSignal(const double* values, int length);
    /// Mean and population deviation of a signal of at least one value.
    void computeMean();
    /// Of the mean last computed or set.
    void computeSd();

    /// -1 until stored, as is the collection's id.
    int GetId() const { return m_Id; }
    void SetId(int id) { m_Id = id; }
    int GetCollectionId() const { return m_CollectionId; }
    void SetCollectionId(int id) { m_CollectionId = id; }
    int GetLength() const { return int(m_Signal.size()); }
    const double* GetSignal() const { return m_Signal.data(); }
    double GetMean() const { return m_Mean; }
    void SetMean(double mean) { m_Mean = mean; }
    double GetSd() const { return m_Sd; }
    void SetSd(double sd) { m_Sd = sd; }
    QString GetAttributeName() const { return m_AttName; }
    void setAttributeName(const QString& name) { m_AttName = name; }

private:
    int m_Id = -1;
    int m_CollectionId = -1;
    std::vector<double> m_Signal;
    double m_Mean = 0.0;
    double m_Sd = 0.0;
    QString m_AttName;
};
