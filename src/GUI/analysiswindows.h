#pragma once

#include <QList>
#include <QPointer>
#include <QWidget>
#include <memory>

/// The windows opened on recordings. Each is deleted when it is closed, at the latest with this
/// object, and what it shows stays alive until then.
class AnalysisWindows
{
public:
    AnalysisWindows() = default;
    ~AnalysisWindows();
    AnalysisWindows(const AnalysisWindows&) = delete;
    AnalysisWindows& operator=(const AnalysisWindows&) = delete;

    /// Takes ownership of the window, and a share of what it shows.
    void Add(QWidget* window, std::shared_ptr<const void> shown);

private:
    QList<QPointer<QWidget>> m_Windows;
};
