#include "rubberband.h"

#include "pixelmath.h"
#include <QMouseEvent>
#include <algorithm>

bool RubberBand::Press(const QMouseEvent& event, double left, double right,
                       Qt::MouseButtons buttons)
{
    if (!(event.button() & buttons) || (m_Active && event.button() != m_Button))
        return false;
    Begin(std::min(double(event.x()), right), left);
    m_Button = event.button();
    m_StartY = event.y();
    return true;
}

bool RubberBand::Move(const QMouseEvent& event, double left, double right)
{
    SetEnd(std::max(left, std::min(double(event.x()), right)));
    m_EndY = event.y();
    return m_Active;
}

bool RubberBand::Release(const QMouseEvent& event)
{
    if (!m_Active || event.button() != m_Button)
        return false;
    m_Active = false;
    return true;
}

QRect RubberBand::GetBox() const
{
    if (!IsValid())
        return {};
    return QRect(QPoint(TruncateToInt(m_Start), m_StartY), QPoint(TruncateToInt(m_End), m_EndY))
        .normalized();
}

void RubberBand::PaintBand(QPainter& painter, int height) const
{
    SelectionRange forward = *this;
    forward.m_Start = GetSelectionStart();
    forward.m_End = GetSelectionEnd();
    forward.Paint(painter, height);
}
