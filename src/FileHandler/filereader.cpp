#include "filereader.h"

#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QXmlStreamReader>

namespace
{

// The texts of all elements, by name, in the order in which the elements end. An element's text
// leaves out those of the elements in it.
QHash<QString, QStringList> readElements(QXmlStreamReader& xml)
{
    QHash<QString, QStringList> texts;
    QStringList open;
    while (!xml.atEnd()) {
        switch (xml.readNext()) {
        case QXmlStreamReader::StartElement:
            open.append(QString());
            break;
        case QXmlStreamReader::Characters:
            if (!open.isEmpty())
                open.last() += xml.text();
            break;
        case QXmlStreamReader::EndElement:
            texts[xml.name().toString()].append(open.takeLast());
            break;
        default:
            break;
        }
    }
    return texts;
}

} // namespace

FileReader::FileReader(const QString& fileName) : m_FileName(fileName) {}

bool FileReader::ReadFile()
{
    QFile file(m_FileName);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text)) {
        m_OwnedDataSet.reset();
        m_DataSet = nullptr;
        return fail(QStringLiteral("Failed to load file"));
    }
    if (!Read(file))
        return false;
    m_DataSet->m_SourceName = QFileInfo(file).fileName();
    return true;
}

bool FileReader::Read(QIODevice& device)
{
    m_OwnedDataSet.reset();
    m_DataSet = nullptr;
    m_Error = QStringLiteral("N/A");
    QXmlStreamReader xml(&device);
    const QHash<QString, QStringList> texts = readElements(xml);
    if (xml.hasError())
        return fail(QStringLiteral("Error parsing file"));
    const QStringList names = texts.value(QStringLiteral("attributenames"));
    const QStringList types = texts.value(QStringLiteral("attributetypes"));
    const QStringList items = texts.value(QStringLiteral("item"));
    if (names.isEmpty() || types.isEmpty() || items.isEmpty())
        return fail(QStringLiteral("Error extracting data"));
    const QLatin1Char comma(',');
    constructDataSet(names.first().split(comma), types.first().split(comma), items);
    return true;
}

void FileReader::constructDataSet(const QStringList& names, const QStringList& types,
                                  const QStringList& items)
{
    const int timePos = types.indexOf(QStringLiteral("Time"));
    const auto withoutTime = [=](QStringList list) {
        if (timePos >= 0 && timePos < list.size())
            list.removeAt(timePos);
        return list;
    };
    auto typeCodes = std::make_unique<QList<AttributeType>>();
    for (const QString& type : types) {
        if (type != QLatin1String("Time"))
            typeCodes->append(AttributeTypeFromName(type));
    }
    auto columns = std::make_unique<QStringList>(withoutTime(names));
    const int count = columns->size();
    m_OwnedDataSet = std::make_unique<DataSet>(count, columns.release(), typeCodes.release());
    m_DataSet = m_OwnedDataSet.get();
    for (const QString& item : items) {
        const QStringList parts = item.split(QLatin1Char(','));
        auto row = std::make_unique<DataRow>();
        if (timePos >= 0)
            row->SetLabel(parts.value(timePos));
        row->SetValues(withoutTime(parts));
        m_DataSet->AddRow(row.release());
    }
}

DataSet* FileReader::GetDataSet()
{
    static_cast<void>(m_OwnedDataSet.release());
    return m_DataSet;
}

bool FileReader::fail(const QString& error)
{
    m_Error = error;
    return false;
}
