#pragma once

#include "progress.h"
#include <functional>

/// Progress that does something as soon as it is told a value, and asks to stop from then on when
/// that says so.
class ScriptedProgress : public Progress
{
public:
    /// onValue: called for every value; true asks to stop.
    explicit ScriptedProgress(std::function<bool(int value)> onValue)
        : m_OnValue(std::move(onValue))
    {
    }

    void SetLabelText(const QString&) override {}
    void SetRange(int, int) override {}
    void SetValue(int value) override { m_IsStopRequested = m_OnValue(value) || m_IsStopRequested; }
    bool IsStopRequested() const override { return m_IsStopRequested; }

private:
    std::function<bool(int)> m_OnValue;
    bool m_IsStopRequested = false;
};
