#include "fileimporter.h"

#include "dialogprogress.h"
#include <QFile>
#include <QFileInfo>

FileImporter::FileImporter(QWidget* parent, const QString& fileName)
    : m_FileName(fileName), m_Parent(parent)
{
}

FileImporter::~FileImporter() = default;

bool FileImporter::Read()
{
    m_OwnedDataSet.reset();
    m_DataSet = nullptr;
    QFile file(m_FileName);
    if (!openFile(file))
        return false;
    // An import has no Cancel: whoever picked the wrong file waits for it and picks another.
    DialogProgress progress(m_Parent, QStringLiteral("Loading file"));
    DelimitedTextReader reader = makeReader();
    const bool isRead = reader.Read(file, progress);
    m_OwnedDataSet = reader.TakeDataSet();
    m_DataSet = m_OwnedDataSet.get();
    if (m_DataSet)
        m_DataSet->m_SourceName = QFileInfo(file).fileName();
    m_Error = reader.GetError();
    m_Warnings = reader.GetWarnings();
    return isRead;
}

QStringList* FileImporter::ReadColumn(int column)
{
    auto texts = std::make_unique<QStringList>();
    QFile file(m_FileName);
    if (!openFile(file))
        return texts.release();
    DelimitedTextReader reader = makeReader();
    if (!reader.ReadColumn(file, column, *texts))
        texts->clear();
    m_Error = reader.GetError();
    m_Warnings = reader.GetWarnings();
    return texts.release();
}

std::unique_ptr<DataSet> FileImporter::TakeDataSet()
{
    m_DataSet = nullptr;
    return std::move(m_OwnedDataSet);
}

DataSet* FileImporter::GetDataSet()
{
    static_cast<void>(m_OwnedDataSet.release());
    return m_DataSet;
}

bool FileImporter::openFile(QFile& file)
{
    m_Error.clear();
    m_Warnings.clear();
    if (!file.exists()) {
        m_Error = QStringLiteral("File does not exist or is no longer present");
        return false;
    }
    // A folder or a device has no end or no bytes to read.
    if (!QFileInfo(file).isFile() ||
        !file.open(QIODevice::ReadOnly | QIODevice::Text | QIODevice::Unbuffered)) {
        m_Error = QStringLiteral("Can't open file");
        return false;
    }
    return true;
}

DelimitedTextReader FileImporter::makeReader() const
{
    DelimitedTextSettings settings;
    settings.delimiter = m_Delimiter;
    settings.startRow = m_StartRow;
    settings.startColumn = m_StartColumn;
    return DelimitedTextReader(settings);
}
