#include "patternfile.h"

#include "databasequery.h"
#include "patternbuilder.h"
#include "signalresampling.h"
#include <QCoreApplication>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSaveFile>
#include <algorithm>
#include <cmath>

namespace
{

const QLatin1String formatKey("format");
const QLatin1String formatName("Skerrymoor templates");
const QLatin1String versionKey("version");
constexpr int currentVersion = 1;
const QLatin1String templatesKey("templates");
const QLatin1String nameKey("name");
const QLatin1String descKey("description");
const QLatin1String rateKey("samplingRate");
const QLatin1String recordingKey("recording");
const QLatin1String fromKey("from");
const QLatin1String toKey("to");
const QLatin1String factorsKey("factors");
const QLatin1String factorKey("factor");
const QLatin1String signalsKey("signals");
const QLatin1String attributeKey("attribute");
const QLatin1String valuesKey("values");

QString tr(const char* text)
{
    return QCoreApplication::translate("PatternFile", text);
}

QString brokenFile()
{
    return tr("Error: The file is broken: it does not hold whole templates.");
}

QJsonObject toJson(const SignalTemplateDataObject& signal)
{
    QJsonArray values;
    for (const double value : signal.GetValues())
        values.append(value);
    return {{attributeKey, signal.GetAttributeName()}, {valuesKey, values}};
}

QJsonObject toJson(const SignalTemplateCollectionDataObject& collection)
{
    QJsonArray stored;
    for (const auto* signal : collection.GetSignals())
        stored.append(toJson(*signal));
    return {{factorKey, collection.GetFrequencyFactor()}, {signalsKey, stored}};
}

QJsonObject toJson(const PatternsDataObject& pattern)
{
    QJsonArray factors;
    for (const auto* collection : pattern.GetSignalCollections())
        factors.append(toJson(*collection));
    QJsonObject object{
        {nameKey, pattern.GetName()}, {descKey, pattern.GetDesc()}, {factorsKey, factors}};
    const PatternOrigin& origin = pattern.GetOrigin();
    if (origin.m_SamplingRate > 0)
        object.insert(rateKey, origin.m_SamplingRate);
    if (!origin.m_Recording.isEmpty())
        object.insert(recordingKey, origin.m_Recording);
    if (origin.m_From >= 0) {
        object.insert(fromKey, origin.m_From);
        object.insert(toKey, origin.m_To);
    }
    return object;
}

// Why a template is not one that a search could use; empty when it is.
QString findFault(const PatternsDataObject& pattern)
{
    const auto& collections = pattern.GetSignalCollections();
    const bool hasSignals =
        !collections.isEmpty() &&
        std::none_of(collections.begin(), collections.end(),
                     [](const auto* collection) { return collection->GetSignals().isEmpty(); });
    const QString fault =
        hasSignals ? FindPatternFault(pattern) : tr("Error: The pattern holds no signals.");
    return fault.isEmpty() ? fault
                           : fault + QStringLiteral(" (") + pattern.GetName() + QLatin1Char(')');
}

/// Takes templates out of a parsed file.
class JsonReader
{
public:
    PatternList Read(const QJsonArray& templates)
    {
        PatternList patterns;
        for (const auto& value : templates)
            patterns.push_back(readPattern(value.toObject()));
        return patterns;
    }

    bool IsWhole() const { return m_IsWhole; }

private:
    std::unique_ptr<PatternsDataObject> readPattern(const QJsonObject& object)
    {
        const QString name = object.value(nameKey).toString().trimmed();
        const QJsonArray factors = object.value(factorsKey).toArray();
        expect(!name.isEmpty() && !factors.isEmpty());
        auto pattern =
            std::make_unique<PatternsDataObject>(-1, name, object.value(descKey).toString());
        pattern->SetOrigin(readOrigin(object));
        for (const auto& factor : factors)
            pattern->AddSignalCollection(readFactor(factor.toObject()).release());
        return pattern;
    }

    PatternOrigin readOrigin(const QJsonObject& object)
    {
        PatternOrigin origin;
        origin.m_SamplingRate = object.value(rateKey).toInt(0);
        origin.m_Recording = object.value(recordingKey).toString();
        origin.m_From = object.value(fromKey).toInt(-1);
        origin.m_To = object.value(toKey).toInt(-1);
        expect(origin.m_SamplingRate >= 0 && origin.m_From >= -1 && origin.m_To >= origin.m_From);
        return origin;
    }

    std::unique_ptr<SignalTemplateCollectionDataObject> readFactor(const QJsonObject& object)
    {
        const double factor = object.value(factorKey).toDouble(0.0);
        const QJsonArray stored = object.value(signalsKey).toArray();
        expect(std::isfinite(factor) && factor > 0.0 && !stored.isEmpty());
        auto collection = std::make_unique<SignalTemplateCollectionDataObject>(factor);
        for (const auto& signal : stored)
            collection->AddSignal(readSignal(signal.toObject()).release());
        const auto& taken = collection->GetSignals();
        expect(std::all_of(taken.begin(), taken.end(), [&](const auto* signal) {
            return signal->GetLength() == taken.first()->GetLength();
        }));
        return collection;
    }

    std::unique_ptr<SignalTemplateDataObject> readSignal(const QJsonObject& object)
    {
        const QJsonArray stored = object.value(valuesKey).toArray();
        std::vector<double> values;
        for (const auto& value : stored) {
            expect(value.isDouble());
            values.push_back(value.toDouble());
        }
        m_Count += stored.size();
        expect(!values.empty() && m_Count <= MaxSignalLength &&
               object.value(attributeKey).isString());
        auto signal = std::make_unique<SignalTemplateDataObject>();
        signal->setAttributeName(object.value(attributeKey).toString());
        signal->SetSignal(values.data(), int(values.size()));
        signal->computeMean();
        signal->computeSd();
        return signal;
    }

    void expect(bool isTrue) { m_IsWhole = m_IsWhole && isTrue; }

    bool m_IsWhole = true;
    qint64 m_Count = 0;
};

// The whole device; empty with an error when it can't be read or is too large.
QByteArray readAll(QIODevice& device, QString& error)
{
    // What can be read without end tells no size.
    QByteArray bytes = device.read(PatternFile::MaxSize + 1);
    if (bytes.size() > PatternFile::MaxSize)
        error = tr("Error: The file is too large for one of templates.");
    else if (bytes.isEmpty())
        error = tr("Error: There is nothing in the file, or it can't be read.");
    return error.isEmpty() ? bytes : QByteArray();
}

QString findFault(const QJsonObject& root)
{
    if (root.value(formatKey).toString() != formatName)
        return tr("Error: This is no file of templates.");
    if (root.value(versionKey).toInt(0) < 1)
        return brokenFile();
    if (root.value(versionKey).toInt() > currentVersion)
        return tr("Error: The file was written by a newer version.");
    return QString();
}

PatternList takePatterns(const QJsonObject& root, QString& error)
{
    error = findFault(root);
    if (!error.isEmpty())
        return {};
    JsonReader reader;
    PatternList patterns = reader.Read(root.value(templatesKey).toArray());
    if (!reader.IsWhole() || patterns.empty())
        error = brokenFile();
    for (size_t i = 0; i < patterns.size() && error.isEmpty(); ++i)
        error = findFault(*patterns[i]);
    return error.isEmpty() ? std::move(patterns) : PatternList();
}

bool writeAside(const QString& path, const QByteArray& bytes)
{
    QSaveFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.commit();
}

} // namespace

bool PatternFile::Export(const QString& path, const QList<int>& ids, QString& error)
{
    PatternList patterns;
    QList<PatternsDataObject*> borrowed;
    for (const int id : ids) {
        patterns.emplace_back(PatternsDataObject::GetPattern(id, true));
        borrowed.append(patterns.back().get());
    }
    if (!borrowed.contains(nullptr))
        return Write(path, borrowed, error);
    error = tr("Error: The pattern can't be read.");
    return false;
}

bool PatternFile::Write(const QString& path, const QList<PatternsDataObject*>& patterns,
                        QString& error)
{
    QJsonArray templates;
    for (const PatternsDataObject* pattern : patterns) {
        error = findFault(*pattern);
        if (!error.isEmpty())
            return false;
        templates.append(toJson(*pattern));
    }
    const QJsonObject root{
        {formatKey, formatName}, {versionKey, currentVersion}, {templatesKey, templates}};
    const QByteArray bytes = QJsonDocument(root).toJson(QJsonDocument::Compact);
    error.clear();
    if (bytes.size() > MaxSize)
        error = tr("Error: The templates are too large for one file.");
    else if (!writeAside(path, bytes))
        error = tr("Error: The file %1 can't be written.").arg(path);
    return error.isEmpty();
}

PatternList PatternFile::Read(QIODevice& device, QString& error)
{
    error.clear();
    const QByteArray bytes = readAll(device, error);
    if (!error.isEmpty())
        return {};
    QJsonParseError fault;
    const QJsonDocument document = QJsonDocument::fromJson(bytes, &fault);
    if (fault.error == QJsonParseError::NoError)
        return takePatterns(document.object(), error);
    error = bytes.contains(formatName.latin1()) ? brokenFile()
                                                : tr("Error: This is no file of templates.");
    return {};
}

PatternList PatternFile::Read(const QString& path, QString& error)
{
    QFile file(path);
    // A device may have no end.
    if (QFileInfo(path).isFile() && file.open(QIODevice::ReadOnly))
        return Read(file, error);
    error = tr("Error: The file %1 can't be read.").arg(path);
    return {};
}

bool PatternFile::Store(const PatternList& patterns, int collectionId)
{
    DatabaseTransaction transaction;
    for (const auto& pattern : patterns) {
        pattern->SetCollectionId(collectionId);
        if (pattern->InsertPattern(true) == -1)
            return false;
    }
    return transaction.Commit();
}
