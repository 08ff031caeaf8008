#pragma once

#include <QByteArray>
#include <QIODevice>

/// A device with a text of which only the first bytes can be read; then every read fails.
class FailingDevice : public QIODevice
{
public:
    FailingDevice(const QByteArray& text, qint64 readableBytes)
        : m_Text(text), m_ReadableBytes(readableBytes)
    {
        open(QIODevice::ReadOnly | QIODevice::Unbuffered);
    }

    qint64 size() const override { return m_Text.size(); }

protected:
    qint64 readData(char* data, qint64 maxSize) override;
    qint64 writeData(const char*, qint64) override { return -1; }

private:
    QByteArray m_Text;
    qint64 m_ReadableBytes;
};
