#include "dialogprogress.h"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QProgressDialog>

namespace
{

constexpr int updateInterval = 50; // milliseconds

// Neither Escape nor the window's own button takes it away.
class UnstoppableDialog : public QProgressDialog
{
public:
    explicit UnstoppableDialog(QWidget* parent) : QProgressDialog(parent)
    {
        setCancelButton(nullptr);
    }
    void reject() override {}

protected:
    void closeEvent(QCloseEvent* event) override { event->ignore(); }
};

} // namespace

DialogProgress::DialogProgress(QWidget* parent, const QString& title, Stopping stopping)
    : m_Dialog(stopping == CAN_STOP ? new QProgressDialog(parent) : new UnstoppableDialog(parent))
{
    m_Dialog->setWindowTitle(title);
    m_Dialog->setAutoReset(false);
    m_Dialog->setAutoClose(false);
    // Whoever waits for the work must not start it a second time.
    m_Dialog->setWindowModality(Qt::WindowModal);
}

DialogProgress::~DialogProgress() = default;

void DialogProgress::SetLabelText(const QString& text)
{
    m_Dialog->setLabelText(text);
    QCoreApplication::processEvents();
}

void DialogProgress::SetRange(int minimum, int maximum)
{
    m_Dialog->setRange(minimum, maximum);
    m_Dialog->show();
    m_SinceUpdate.start();
}

void DialogProgress::SetValue(int value)
{
    if (m_SinceUpdate.isValid() && m_SinceUpdate.elapsed() < updateInterval)
        return;
    m_Dialog->setValue(value);
    QCoreApplication::processEvents();
    m_SinceUpdate.start();
}

bool DialogProgress::IsStopRequested() const
{
    return m_Dialog->wasCanceled();
}
