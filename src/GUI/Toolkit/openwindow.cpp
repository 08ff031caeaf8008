#include "openwindow.h"

#include <QWidget>

void OpenWindow(QWidget* window, QObject* owner, std::shared_ptr<const void> shown)
{
    window->setAttribute(Qt::WA_DeleteOnClose);
    QObject::connect(owner, &QObject::destroyed, window, [window] { delete window; });
    // The connection holds the share and goes away with the window.
    QObject::connect(window, &QObject::destroyed, [shown = std::move(shown)] {});
    window->show();
}
