#include "stepprogress.h"

#include "progress.h"

namespace
{
constexpr int textInterval = 50; // milliseconds
}

StepProgress::StepProgress(Progress& progress, const QString& text, int count)
    : m_Progress(progress), m_Text(text), m_Count(count)
{
}

void StepProgress::SetStep(int step)
{
    m_Progress.SetValue(step);
    if (m_SinceText.isValid() && m_SinceText.elapsed() < textInterval)
        return;
    m_Progress.SetLabelText(m_Text.arg(step + 1).arg(m_Count));
    m_SinceText.start();
}
