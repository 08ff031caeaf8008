#include "signalresampling.h"

#include <QLoggingCategory>
#include <cmath>

namespace
{

Q_LOGGING_CATEGORY(templates, "skerrymoor.templates", QtWarningMsg)

bool isUpsampled(int up, int down)
{
    return up >= 2 && up != down;
}

bool isDownsampled(int up, int down)
{
    return down > 1 && up != down;
}

std::vector<double> upsample(const std::vector<double>& signal, int factor)
{
    std::vector<double> values;
    values.reserve((signal.size() - 1) * size_t(factor) + 1);
    for (size_t i = 0; i + 1 < signal.size(); ++i) {
        const double step = (signal[i + 1] - signal[i]) / factor;
        double value = signal[i];
        for (int k = 0; k < factor; ++k) {
            values.push_back(value);
            value += step;
        }
    }
    values.push_back(signal.back());
    return values;
}

// Nothing is filtered beforehand, so fast changes show up as slow ones.
std::vector<double> downsample(const std::vector<double>& signal, int factor)
{
    std::vector<double> values(size_t(std::ceil(float(signal.size()) / float(factor))));
    for (size_t i = 0; i < values.size(); ++i)
        values[i] = signal[i * size_t(factor)];
    return values;
}

} // namespace

qint64 UpsampledLength(qint64 length, int up, int down)
{
    return isUpsampled(up, down) && length > 0 ? (length - 1) * (up - 1) + length : length;
}

qint64 ResampledLength(qint64 length, int up, int down)
{
    const qint64 upsampled = UpsampledLength(length, up, down);
    return isDownsampled(up, down) ? (upsampled + down - 1) / down : upsampled;
}

std::vector<double> ResampledSignal(const std::vector<double>& signal, int up, int down)
{
    if (signal.empty() || UpsampledLength(qint64(signal.size()), up, down) > MaxSignalLength)
        return {};
    std::vector<double> values;
    if (isUpsampled(up, down)) {
        values = upsample(signal, up);
    } else {
        qCDebug(templates) << "not upsampling";
        values = signal;
    }
    if (isDownsampled(up, down))
        return downsample(values, down);
    qCDebug(templates) << "not downsampling";
    return values;
}
