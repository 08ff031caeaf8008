#pragma once

#include <QString>

/// What a long computation reports to. Core knows only this; the dialog that shows it is an
/// adapter in ui, which also keeps the window alive and throttles itself: report freely.
class Progress
{
public:
    virtual ~Progress() = default;
    virtual void SetLabelText(const QString& text) = 0;
    virtual void SetRange(int minimum, int maximum) = 0;
    virtual void SetValue(int value) = 0;
    /// Whether whoever waits wants the work to end early. Work that can stop asks after each
    /// SetValue, leaves everything as it was before and says in its result that it stopped.
    virtual bool IsStopRequested() const { return false; }
};

/// Progress nobody looks at.
class NoProgress : public Progress
{
public:
    /// One for all who need one.
    static Progress& Shared()
    {
        static NoProgress progress;
        return progress;
    }

    void SetLabelText(const QString&) override {}
    void SetRange(int, int) override {}
    void SetValue(int) override {}
};
