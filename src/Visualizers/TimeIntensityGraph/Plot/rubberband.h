#pragma once

#include "selectionrange.h"
#include <QRect>
#include <limits>

class QMouseEvent;

/// A selection that the user drags: from where a mouse button is pressed to where the pointer is.
///
/// Widgets hand it their mouse events. Limits are pixels beyond which an end does not go.
class RubberBand : public SelectionRange
{
public:
    static constexpr double Unlimited = std::numeric_limits<double>::infinity();

    /// Begins anew. False for other buttons, and while it is dragged with another one.
    bool Press(const QMouseEvent& event, double left, double right = Unlimited,
               Qt::MouseButtons buttons = Qt::LeftButton);
    /// The end follows the pointer. False when the band is not dragged.
    bool Move(const QMouseEvent& event, double left = -Unlimited, double right = Unlimited);
    /// Lets go, without a change of the ends. False unless that button has dragged the band.
    bool Release(const QMouseEvent& event);
    Qt::MouseButton GetButton() const { return m_Button; }

    /// The rectangle between both ends; empty until both are there.
    QRect GetBox() const;
    /// The band over that height, dragged either way, in the look of all selections.
    void PaintBand(QPainter& painter, int height) const;

private:
    Qt::MouseButton m_Button = Qt::NoButton;
    int m_StartY = 0;
    int m_EndY = 0;
};
