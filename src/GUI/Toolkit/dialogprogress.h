#pragma once

#include "progress.h"
#include <QElapsedTimer>
#include <QProgressDialog>

/// Progress shown in a dialog without a cancel button. The dialog appears with the first range
/// and closes with this object.
class DialogProgress : public Progress
{
public:
    DialogProgress(QWidget* parent, const QString& title);

    void SetLabelText(const QString& text) override;
    void SetRange(int minimum, int maximum) override;
    /// The window system gets its turn about every 50 ms, however often this is called.
    void SetValue(int value) override;

private:
    QProgressDialog m_Dialog;
    QElapsedTimer m_SinceUpdate;
};
