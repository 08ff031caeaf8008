#pragma once

#include <QElapsedTimer>
#include <QString>

class Progress;

/// Says which of many steps is under way, but not so often that saying it takes longer than the
/// steps.
class StepProgress
{
public:
    /// text: with %1 for the number of the step, from 1 on, and %2 for that of all steps.
    StepProgress(Progress& progress, const QString& text, int count);

    /// step: from 0 on. The progress takes it as its value, whatever its range.
    void SetStep(int step);

private:
    Progress& m_Progress;
    const QString m_Text;
    const int m_Count;
    QElapsedTimer m_SinceText;
};
