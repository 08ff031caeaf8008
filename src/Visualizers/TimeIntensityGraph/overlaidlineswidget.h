#pragma once

#include "cachedpicture.h"
#include "rubberband.h"
#include <QWidget>
#include <memory>
#include <vector>

class OverlaidLines;

/// Shows overlaid lines from a cached picture, with a rubber band in which the user can reject
/// lines.
class OverlaidLinesWidget : public QWidget
{
    Q_OBJECT
public:
    ~OverlaidLinesWidget() override;

    int GetLineCount() const;
    void SetAlpha(double alpha);
    void ChangeAttributeID(int attribute);
    void ClearLines();
    /// Paints the lines anew, after lines have been added.
    void RepaintLines();

protected:
    /// rejecting: whether a rubber band rejects the lines that pass through it.
    OverlaidLinesWidget(std::unique_ptr<OverlaidLines> lines, bool rejecting, QWidget* parent);

    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

    /// Whether a line is a result, which a rubber band can reject.
    virtual bool isResult(int line) const;
    /// What the box would reject: the lines that are results, ascending, unless the subclass
    /// counts its results otherwise.
    virtual std::vector<int> findResults(const QRect& box) const;
    /// The user drags a box, or has let go of it: then it is empty.
    virtual void dragBox(const QRect&) {}
    /// The user has agreed to reject these lines, which findResults gave.
    virtual void rejectLines(const std::vector<int>& lines);

    OverlaidLines& lines() const { return *m_Lines; }
    void markStale();

private:
    void askToReject(const QRect& box);

    std::unique_ptr<OverlaidLines> m_Lines;
    const bool m_Rejecting;
    CachedPicture m_Picture;
    RubberBand m_Band;
};
