#pragma once

#include <QCursor>
#include <QGuiApplication>

/// Shows a busy pointer while it lives: for work of a second or two that has no progress to tell.
class WaitCursor
{
public:
    WaitCursor() { QGuiApplication::setOverrideCursor(Qt::WaitCursor); }
    ~WaitCursor() { QGuiApplication::restoreOverrideCursor(); }
    WaitCursor(const WaitCursor&) = delete;
    WaitCursor& operator=(const WaitCursor&) = delete;
};
