#pragma once

#include <memory>

class QObject;
class QWidget;

/// Shows a window that lives on by itself. It is deleted when it is closed, at the latest with its
/// owner, and what it shows stays alive until then.
void OpenWindow(QWidget* window, QObject* owner, std::shared_ptr<const void> shown);
