#pragma once

#include "progress.h"
#include "waitcursor.h"
#include <QElapsedTimer>
#include <memory>
#include <optional>

class QProgressDialog;
class QWidget;

/// Progress shown in a dialog that closes with this object; until then no other window takes keys
/// or clicks. It has a cancel button only for work that can stop.
class DialogProgress : public Progress
{
public:
    enum Stopping { CANNOT_STOP, CAN_STOP };
    enum Showing {
        SHOW_AT_ONCE,  ///< with the first range
        SHOW_WHEN_LONG ///< when the work has taken half a second; a busy pointer until then
    };

    DialogProgress(QWidget* parent, const QString& title, Stopping stopping = CANNOT_STOP,
                   Showing showing = SHOW_AT_ONCE);
    ~DialogProgress() override;

    void SetLabelText(const QString& text) override;
    void SetRange(int minimum, int maximum) override;
    /// The window system gets its turn about every 50 ms, however often this is called.
    void SetValue(int value) override;
    /// The user has pressed Cancel or Escape; never for work that cannot stop.
    bool IsStopRequested() const override;

private:
    void show();

    std::unique_ptr<QProgressDialog> m_Dialog;
    const Showing m_Showing;
    QElapsedTimer m_SinceStart;
    QElapsedTimer m_SinceUpdate;
    // As long as the dialog is held back.
    std::optional<WaitCursor> m_Wait;
};
