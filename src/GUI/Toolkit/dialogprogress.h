#pragma once

#include "progress.h"
#include <QElapsedTimer>
#include <memory>

class QProgressDialog;
class QWidget;

/// Progress shown in a dialog. The dialog appears with the first range and closes with this
/// object. It has a cancel button only for work that can stop.
class DialogProgress : public Progress
{
public:
    enum Stopping { CANNOT_STOP, CAN_STOP };

    DialogProgress(QWidget* parent, const QString& title, Stopping stopping = CANNOT_STOP);
    ~DialogProgress() override;

    void SetLabelText(const QString& text) override;
    void SetRange(int minimum, int maximum) override;
    /// The window system gets its turn about every 50 ms, however often this is called.
    void SetValue(int value) override;
    /// The user has pressed Cancel or Escape; never for work that cannot stop.
    bool IsStopRequested() const override;

private:
    std::unique_ptr<QProgressDialog> m_Dialog;
    QElapsedTimer m_SinceUpdate;
};
