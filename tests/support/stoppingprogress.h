#pragma once

#include "progress.h"

/// Progress on which somebody presses Cancel at the n-th value.
class StoppingProgress : public NoProgress
{
public:
    explicit StoppingProgress(int values) : m_Left(values) {}

    void SetValue(int) override { --m_Left; }
    bool IsStopRequested() const override { return m_Left <= 0; }

private:
    int m_Left;
};
