#include "dialogprogress.h"

#include <QCoreApplication>

namespace
{
constexpr int updateInterval = 50; // milliseconds
}

DialogProgress::DialogProgress(QWidget* parent, const QString& title) : m_Dialog(parent)
{
    m_Dialog.setWindowTitle(title);
    m_Dialog.setCancelButton(nullptr);
    m_Dialog.setAutoReset(false);
    m_Dialog.setAutoClose(false);
    // Whoever waits for the work must not start it a second time.
    m_Dialog.setWindowModality(Qt::WindowModal);
}

void DialogProgress::SetLabelText(const QString& text)
{
    m_Dialog.setLabelText(text);
    QCoreApplication::processEvents();
}

void DialogProgress::SetRange(int minimum, int maximum)
{
    m_Dialog.setRange(minimum, maximum);
    m_Dialog.show();
    m_SinceUpdate.start();
}

void DialogProgress::SetValue(int value)
{
    if (m_SinceUpdate.isValid() && m_SinceUpdate.elapsed() < updateInterval)
        return;
    m_Dialog.setValue(value);
    QCoreApplication::processEvents();
    m_SinceUpdate.start();
}
