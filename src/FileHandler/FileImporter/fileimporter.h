#pragma once

#include "dataset.h"
#include "delimitedtextreader.h"
#include <QStringList>
#include <memory>

class QFile;
class QWidget;

/// Reads a delimited text file into a data set, with a progress dialog.
class FileImporter
{
public:
    /// parent: of the progress dialog, may be null.
    FileImporter(QWidget* parent, const QString& fileName);
    ~FileImporter();
    FileImporter(const FileImporter&) = delete;
    FileImporter& operator=(const FileImporter&) = delete;

    /// Lines to skip before the data; 0 by default.
    void SetStartRow(int row) { m_StartRow = row; }
    /// Columns to skip at the left of each line; 0 by default.
    void SetStartColumn(int column) { m_StartColumn = column; }
    /// The column separator; a tabulator by default.
    void SetDelimiter(const QString& delimiter) { m_Delimiter = delimiter; }

    /// Reads the file. False with GetError after a failure; a data set of the rows read up to it
    /// may be there.
    bool Read();
    /// The texts of one column, one per row that Read makes, in a new list that the caller owns.
    /// column counts from the start column on. Empty after a failure, with GetError.
    QStringList* ReadColumn(int column);

    /// The data set of the last Read, or null.
    std::unique_ptr<DataSet> TakeDataSet();
    /// The same, also when asked again; the caller owns it from then on.
    DataSet* GetDataSet();
    QString GetError() const { return m_Error; }
    /// One entry per line left out because its number of columns differed.
    QStringList GetWarnings() const { return m_Warnings; }

private:
    bool openFile(QFile& file);
    DelimitedTextReader makeReader() const;

    QString m_Error;
    QStringList m_Warnings;
    QString m_FileName;
    QString m_Delimiter = QStringLiteral("\t");
    int m_StartRow = 0;
    int m_StartColumn = 0;
    DataSet* m_DataSet = nullptr;
    // Holds m_DataSet until GetDataSet hands it out.
    std::unique_ptr<DataSet> m_OwnedDataSet;
    QWidget* m_Parent;
};
