#include "testdata.h"

std::unique_ptr<DataSet> MakeDataSet(const char* rows, const QStringList& names)
{
    auto data = std::make_unique<DataSet>();
    const QStringList lines = QString::fromUtf8(rows).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    const int width =
        lines.isEmpty() ? names.size() : lines.first().simplified().split(QLatin1Char(' ')).size();
    for (int i = 0; i < width; ++i)
        data->AddAttribute(names.value(i, QString(QLatin1Char(char('A' + i % 26)))),
                           ATTRIBUTE_OTHER);
    for (const QString& line : lines) {
        auto* row = new DataRow;
        row->SetValues(line.simplified().split(QLatin1Char(' ')));
        row->SetLabel(QString::number(data->GetRowCount() + 1));
        data->AddRow(row);
    }
    data->ComputeRanges();
    return data;
}

std::unique_ptr<DataSet> MakeRecording(int rows, int attributes)
{
    QByteArray text;
    for (int i = 0; i < rows; ++i) {
        for (int j = 0; j < attributes; ++j)
            text += QByteArray::number((i * 7 + j) % 11) + ' ';
        text += '\n';
    }
    return MakeDataSet(text.constData());
}

std::unique_ptr<DataSet> MakeColumn(const std::vector<double>& values)
{
    auto data = MakeDataSet("", {QStringLiteral("A")});
    for (const double value : values) {
        auto* row = new DataRow;
        row->AddValue(value);
        row->SetLabel(QString::number(data->GetRowCount() + 1));
        data->AddRow(row);
    }
    data->ComputeRanges();
    return data;
}
