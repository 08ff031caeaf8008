#include "failingdevice.h"

#include <algorithm>

qint64 FailingDevice::readData(char* data, qint64 maxSize)
{
    const qint64 count =
        std::min(maxSize, std::min<qint64>(m_ReadableBytes, m_Text.size()) - pos());
    if (count <= 0 && pos() < m_Text.size()) {
        setErrorString(QStringLiteral("bad sector"));
        return -1;
    }
    std::copy_n(m_Text.constData() + pos(), count, data);
    return count;
}
