#include "dialogprogress.h"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QProgressDialog>

namespace
{

// Milliseconds.
constexpr int updateInterval = 50;
constexpr int longWork = 500;

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

DialogProgress::DialogProgress(QWidget* parent, const QString& title, Stopping stopping,
                               Showing showing)
    : m_Dialog(stopping == CAN_STOP ? new QProgressDialog(parent) : new UnstoppableDialog(parent)),
      m_Showing(showing)
{
    m_Dialog->setWindowTitle(title);
    m_Dialog->setAutoReset(false);
    m_Dialog->setAutoClose(false);
    // Whoever waits for the work must not start it a second time, nor change in another window
    // what it reads.
    m_Dialog->setWindowModality(Qt::ApplicationModal);
    m_SinceStart.start();
    if (showing == SHOW_WHEN_LONG)
        m_Wait.emplace();
}

DialogProgress::~DialogProgress() = default;

void DialogProgress::SetLabelText(const QString& text)
{
    m_Dialog->setLabelText(text);
    if (!m_Wait)
        QCoreApplication::processEvents();
}

void DialogProgress::SetRange(int minimum, int maximum)
{
    m_Dialog->setRange(minimum, maximum);
    if (m_Showing == SHOW_AT_ONCE && !m_Dialog->wasCanceled())
        show();
}

void DialogProgress::SetValue(int value)
{
    if (m_SinceUpdate.isValid() && m_SinceUpdate.elapsed() < updateInterval)
        return;
    m_SinceUpdate.start();
    if (m_Wait && m_SinceStart.elapsed() < longWork)
        return;
    if (m_Wait)
        show();
    m_Dialog->setValue(value);
    QCoreApplication::processEvents();
    m_SinceUpdate.start();
}

bool DialogProgress::IsStopRequested() const
{
    return m_Dialog->wasCanceled();
}

void DialogProgress::show()
{
    m_Wait.reset();
    m_Dialog->show();
    m_SinceUpdate.start();
}
