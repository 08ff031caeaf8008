#pragma once

#include "dataset.h"
#include "progress.h"
#include <QStringList>
#include <functional>
#include <memory>
#include <string_view>

class QIODevice;

/// How a delimited text is to be read.
struct DelimitedTextSettings {
    QString delimiter = QStringLiteral("\t");
    /// Lines to skip before the data, columns to skip at the left of each line.
    int startRow = 0;
    int startColumn = 0;
};

/// Reads delimited text, one line per time step, into a data set.
///
/// Empty lines are passed over. The first line with text sets the number of columns; a line
/// with another number is left out with a warning, and the eleventh of these ends the reading.
/// The device is read twice, the first time only to count its lines, so it must be able to go
/// back to its start.
class DelimitedTextReader
{
public:
    explicit DelimitedTextReader(const DelimitedTextSettings& settings);

    /// Reads an open device. Texts that are no numbers become 0. False with GetError after a
    /// failure: the data set then holds the rows read before it, and is null when the device
    /// could not be read at all or the reading was stopped.
    bool Read(QIODevice& device, Progress& progress);
    /// The texts of one column, counted from the start column on, one for each row that Read
    /// would make. False with GetError as Read does, and when there is no such column.
    bool ReadColumn(QIODevice& device, int column, QStringList& texts);

    std::unique_ptr<DataSet> TakeDataSet() { return std::move(m_DataSet); }
    QString GetError() const { return m_Error; }
    /// One entry per line whose number of columns differed.
    QStringList GetWarnings() const { return m_Warnings; }

private:
    // Cuts a line into fields and returns their number.
    using Split = std::function<int(std::string_view line)>;
    // Takes the line last split as a row.
    using AddRow = std::function<bool()>;

    bool countLines(QIODevice& device, qint64& lines);
    bool readRows(QIODevice& device, qint64 lines, Progress& progress, const Split& split,
                  const AddRow& addRow);
    bool checkWidth(int parts, int& width, qint64 line);
    bool fail(const QString& error);
    bool warn(qint64 line);

    DelimitedTextSettings m_Settings;
    std::unique_ptr<DataSet> m_DataSet;
    QString m_Error;
    QStringList m_Warnings;
};
