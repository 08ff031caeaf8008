#pragma once

#include "signaltemplatedataobject.h"
#include <QList>

class QSqlQuery;

/// The signals of a template at one frequency factor: a row of "signal_template_collection".
/// Owns its signals, one per attribute.
class SignalTemplateCollectionDataObject
{
public:
    explicit SignalTemplateCollectionDataObject(double frequencyFactor = 1.0)
        : m_FrequencyFactor(frequencyFactor)
    {
    }
    ~SignalTemplateCollectionDataObject() { qDeleteAll(m_Signals); }
    SignalTemplateCollectionDataObject(const SignalTemplateCollectionDataObject&) = delete;
    SignalTemplateCollectionDataObject&
    operator=(const SignalTemplateCollectionDataObject&) = delete;

    /// The signal collection of that id with its signals, which the caller owns; null when there
    /// is none or not all of it can be read.
    static SignalTemplateCollectionDataObject* GetSignal(int id);
    /// Those of a pattern, by rising frequency factor, with loadSignals with their signals; the
    /// caller owns them. Empty after a failure.
    static QList<SignalTemplateCollectionDataObject*>
    GetSignalsByPatternID(int id, bool loadSignals = true);
    /// Removes a signal collection and, by the database's own cascade, its signals.
    static bool DeleteSignalTemplate(int id);

    /// Stores this as a new row, with addSignals all signals under it too. The new id, or -1
    /// with nothing stored.
    int InsertSignal(bool addSignals);

    /// -1 until stored.
    int GetId() const { return m_Id; }
    void SetId(int id) { m_Id = id; }
    double GetFrequencyFactor() const { return m_FrequencyFactor; }
    void SetFrequencyFactor(double factor) { m_FrequencyFactor = factor; }
    int GetPatternId() const { return m_PatternId; }
    void SetPatternId(int id) { m_PatternId = id; }
    const QList<SignalTemplateDataObject*>& GetSignals() const { return m_Signals; }
    /// Takes ownership.
    void AddSignal(SignalTemplateDataObject* signal) { m_Signals.append(signal); }

private:
    static QList<SignalTemplateCollectionDataObject*> readAll(QSqlQuery& query, bool loadSignals);

    int m_Id = -1;
    double m_FrequencyFactor;
    QList<SignalTemplateDataObject*> m_Signals;
    int m_PatternId = -1;
};
