#pragma once

#include "groundtruithbehaviorcollection.h"
#include <QFile>

class DataSet;

/// Reads a file of labelled segments, comma-separated lines of name, first and end row.
///
/// Fields in double quotes may hold commas and line ends; a quote that is never closed loses its
/// record. The rows are looked up by their labels, though projects are written with row indices,
/// and fields are lower-cased: a project comes back one row earlier, in lower case and
/// without its segments that start at row 0.
class GroundTruithReader : public QFile
{
    Q_OBJECT
public:
    explicit GroundTruithReader(const QString& path) : QFile(path) {}

    void SetDataSet(const DataSet* dataSet) { m_DataSet = dataSet; }

    /// False with GetError after a failure; the collection is empty then. Records that make no
    /// instance are passed over.
    bool ReadFile();
    /// What the last reading found; null once it has been taken.
    GroundTruithBehaviorCollection* GetCollection() const { return m_Collection.get(); }
    /// Hands the collection over to someone who outlives the reader.
    std::unique_ptr<GroundTruithBehaviorCollection> TakeCollection()
    {
        return std::move(m_Collection);
    }
    QString GetError() const { return m_Error; }

private:
    bool readText(QString& text);
    bool fail(const QString& error);
    void addInstances(const QString& text);

    const DataSet* m_DataSet = nullptr;
    std::unique_ptr<GroundTruithBehaviorCollection> m_Collection =
        std::make_unique<GroundTruithBehaviorCollection>();
    QString m_Error;
};
