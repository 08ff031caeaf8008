#pragma once

class QPainter;
class QRect;

/// A yellow area with a black outline. The caller sets the opacity.
void PaintSelected(QPainter& painter, const QRect& area);

/// A span of logical pixels that the user drags with the mouse; -1 marks an end that is not set.
struct SelectionRange {
    bool m_Active = false;
    double m_Start = -1;
    double m_End = -1;

    void Clear() { *this = SelectionRange(); }
    /// Starts a new drag at x, which may not lie left of leftLimit.
    void Begin(double x, double leftLimit);
    void SetActive(bool active) { m_Active = active; }
    void SetStart(double x) { m_Start = x; }
    /// Does nothing unless a drag is active.
    void SetEnd(double x);

    /// Both ends are set; the start may lie right of the end.
    bool IsValid() const;
    bool HasSelection() const { return IsValid(); }
    /// The lower and the higher of the two pixels.
    double GetSelectionStart() const { return m_Start < m_End ? m_Start : m_End; }
    double GetSelectionEnd() const { return m_Start < m_End ? m_End : m_Start; }

    /// A yellow rectangle with a black outline; nothing for a drag from right to left. The caller
    /// sets the opacity.
    void Paint(QPainter& painter, int height) const;
};
