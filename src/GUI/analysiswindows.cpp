#include "analysiswindows.h"

AnalysisWindows::~AnalysisWindows()
{
    for (const QPointer<QWidget>& window : m_Windows)
        delete window;
}

void AnalysisWindows::Add(QWidget* window, std::shared_ptr<const void> shown)
{
    m_Windows.removeAll(nullptr);
    m_Windows.append(window);
    window->setAttribute(Qt::WA_DeleteOnClose);
    // The connection holds the share and goes away with the window.
    QObject::connect(window, &QObject::destroyed, [shown = std::move(shown)] {});
}
