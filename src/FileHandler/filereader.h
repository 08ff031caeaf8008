#pragma once

#include "dataset.h"
#include <QStringList>
#include <memory>

class QIODevice;

/// Reads XML, and nothing else, whatever its name says: a recording as elements "attributenames"
/// and "attributetypes" with comma-separated lists, and an "item" per row with its comma-separated
/// values. FileImporter reads delimited text.
class FileReader
{
public:
    explicit FileReader(const QString& fileName);

    /// False with GetError after a failure; there is no data set then.
    bool ReadFile();
    /// The same from an open device.
    bool Read(QIODevice& device);
    /// Makes the data set from names, type names and rows. The column typed "Time" gives the
    /// rows' labels.
    void constructDataSet(const QStringList& names, const QStringList& types,
                          const QStringList& items);

    /// The data set of the last reading, or null, also when asked again. The caller owns it from
    /// then on.
    DataSet* GetDataSet();
    /// "N/A" when nothing went wrong.
    QString GetError() const { return m_Error; }

private:
    bool fail(const QString& error);

    QString m_FileName;
    DataSet* m_DataSet = nullptr;
    // Holds m_DataSet until GetDataSet hands it out.
    std::unique_ptr<DataSet> m_OwnedDataSet;
    QString m_Error = QStringLiteral("N/A");
};
