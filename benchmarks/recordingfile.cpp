#include "recordingfile.h"

#include <cmath>
#include <random>

namespace
{

// A slow swing with noise on it, another one in each column; six digits, some of them negative.
class Samples
{
public:
    double Next(int row, int column)
    {
        return (column + 1) * (std::sin(row * 0.001 * (column + 1)) + m_Noise(m_Random));
    }

private:
    std::mt19937 m_Random{1};
    std::uniform_real_distribution<double> m_Noise{-0.5, 0.5};
};

} // namespace

RecordingFile::RecordingFile(int rows, int columns)
{
    const QString path = qEnvironmentVariable("SKERRYMOOR_RECORDING");
    const bool isNew = path.isEmpty() || !QFile::exists(path);
    m_File.reset(path.isEmpty() ? new QTemporaryFile : new QFile(path));
    if (!isNew)
        return;
    if (!m_File->open(QIODevice::ReadWrite))
        qFatal("no file for the recording");
    Samples samples;
    QByteArray block;
    for (int row = 0; row < rows; ++row) {
        for (int column = 0; column < columns; ++column) {
            if (column > 0)
                block += '\t';
            block += QByteArray::number(samples.Next(row, column), 'g', 6);
        }
        block += '\n';
        if (block.size() > 1'000'000 || row == rows - 1) {
            if (m_File->write(block) != block.size())
                qFatal("no room for the recording");
            block.clear();
        }
    }
    m_File->close();
}

std::unique_ptr<DataSet> MakeRecording(int rows, int columns)
{
    std::vector<DataColumn> values;
    for (int column = 0; column < columns; ++column)
        values.emplace_back(rows);
    Samples samples;
    for (int row = 0; row < rows; ++row) {
        for (int column = 0; column < columns; ++column)
            values[size_t(column)][row] = samples.Next(row, column);
    }
    auto data = std::make_unique<DataSet>();
    data->TakeColumns(std::move(values));
    return data;
}
