#include "recordparser.h"

namespace
{

// A field as it was gathered, without its quotes.
QString plainField(QString field)
{
    const QLatin1Char quote('"');
    if (field.size() >= 2 && field.startsWith(quote) && field.endsWith(quote))
        field = field.mid(1, field.size() - 2);
    field.replace(QLatin1String("\"\""), QLatin1String("\""));
    return std::move(field).toLower();
}

} // namespace

void ParseRecords(const QString& text, const std::function<void(const QStringList&)>& take)
{
    QStringList fields;
    QString field;
    bool isQuoted = false;
    const auto closeField = [&](bool endsRecord) {
        fields.append(plainField(field));
        field.resize(0);
        if (!endsRecord)
            return;
        take(fields);
        fields.clear();
    };
    for (const QChar character : text) {
        const bool isLineEnd = character == QLatin1Char('\n');
        if (!isQuoted && (isLineEnd || character == QLatin1Char(',')))
            closeField(isLineEnd);
        else if (character != QLatin1Char('\r'))
            field += character;
        if (character == QLatin1Char('"'))
            isQuoted = !isQuoted;
    }
    if (!isQuoted)
        closeField(true);
}
