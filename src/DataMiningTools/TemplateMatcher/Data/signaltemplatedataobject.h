#pragma once

#include <QList>
#include <QString>
#include <memory>
#include <vector>

class DataSet;
class QSqlQuery;

/// One stored signal of a template, from one attribute: a row of "signal_template".
class SignalTemplateDataObject
{
public:
    SignalTemplateDataObject() = default;
    SignalTemplateDataObject(const SignalTemplateDataObject&) = delete;
    SignalTemplateDataObject& operator=(const SignalTemplateDataObject&) = delete;

    /// The signal of that id, which the caller owns; null when there is none.
    static SignalTemplateDataObject* GetSignal(int id);
    /// Those of a signal collection; the caller owns them. Empty after a failure.
    static QList<SignalTemplateDataObject*> GetSignalsByCollectionID(int id);
    static bool DeleteSignal(int id);

    /// Stores this as a new row; the new id, or -1.
    int InsertSignal();

    /// Copies rows start to end - 1 of an attribute. False, and nothing changed, for less than
    /// one row and for what the data set doesn't have.
    bool SetSignal(DataSet* dataSet, int attribute, int start, int end);
    /// Copies length values.
    void SetSignal(const double* values, int length);
    /// Mean and population deviation of a signal of at least one value.
    void computeMean();
    /// Of the mean last computed or set.
    void computeSd();

    /// Smooths the signal in place by a Savitzky-Golay filter of order 4, as SmoothedSignal says.
    /// False without a signal.
    bool SmoothSignal(int window);
    /// The same as CentredSmoothedSignal says.
    bool SmoothSignalCentred(int window);
    /// The values up-sampled, then down-sampled, as ResampledSignal says; their number goes to
    /// newLength.
    std::vector<double> resampleSignal(int up, int down, int& newLength) const;
    /// A new signal of the same attribute and collection with the resampled values and their mean
    /// and deviation, not stored. Null where there are none.
    std::unique_ptr<SignalTemplateDataObject> resampledCopy(int up, int down) const;

    /// -1 until stored, as is the collection's id.
    int GetId() const { return m_Id; }
    void SetId(int id) { m_Id = id; }
    int GetCollectionId() const { return m_CollectionId; }
    void SetCollectionId(int id) { m_CollectionId = id; }
    int GetLength() const { return int(m_Signal.size()); }
    const double* GetSignal() const { return m_Signal.data(); }
    const std::vector<double>& GetValues() const { return m_Signal; }
    double GetMean() const { return m_Mean; }
    void SetMean(double mean) { m_Mean = mean; }
    double GetSd() const { return m_Sd; }
    void SetSd(double sd) { m_Sd = sd; }
    QString GetAttributeName() const { return m_AttName; }
    void setAttributeName(const QString& name) { m_AttName = name; }

private:
    static SignalTemplateDataObject* fromRow(const QSqlQuery& row);

    int m_Id = -1;
    int m_CollectionId = -1;
    std::vector<double> m_Signal;
    double m_Mean = 0.0;
    double m_Sd = 0.0;
    QString m_AttName;
};
