#include "overlaidlineswidget.h"

#include "askuser.h"
#include "overlaidlines.h"
#include "plotlook.h"
#include <QMouseEvent>
#include <QPainter>
#include <QPointer>
#include <algorithm>

OverlaidLinesWidget::OverlaidLinesWidget(std::unique_ptr<OverlaidLines> lines, bool rejecting,
                                         QWidget* parent)
    : QWidget(parent), m_Lines(std::move(lines)), m_Rejecting(rejecting)
{
}

OverlaidLinesWidget::~OverlaidLinesWidget() = default;

int OverlaidLinesWidget::GetLineCount() const
{
    return m_Lines->GetLineCount();
}

void OverlaidLinesWidget::SetAlpha(double alpha)
{
    m_Lines->SetAlpha(alpha);
    markStale();
}

void OverlaidLinesWidget::ChangeAttributeID(int attribute)
{
    m_Lines->ChangeAttributeID(attribute);
    markStale();
}

void OverlaidLinesWidget::ClearLines()
{
    m_Lines->Clear();
    markStale();
}

void OverlaidLinesWidget::RepaintLines()
{
    markStale();
}

void OverlaidLinesWidget::markStale()
{
    m_Picture.Invalidate();
    update();
}

void OverlaidLinesWidget::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    m_Lines->SetSize(float(height()), float(width()));
    markStale();
}

void OverlaidLinesWidget::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    m_Picture.Paint(painter, {}, size(), devicePixelRatioF(), [this](QPainter& lines) {
        lines.setRenderHint(QPainter::Antialiasing);
        m_Lines->Paint(lines);
    });
    if (!m_Band.m_Active || !m_Band.IsValid())
        return;
    painter.setOpacity(MarkOpacity);
    PaintSelected(painter, m_Band.GetBox());
}

void OverlaidLinesWidget::mousePressEvent(QMouseEvent* event)
{
    if (m_Rejecting)
        m_Band.Press(*event, 0, width());
}

void OverlaidLinesWidget::mouseMoveEvent(QMouseEvent* event)
{
    if (!m_Band.Move(*event, 0, width()))
        return;
    dragBox(m_Band.GetBox());
    update();
}

void OverlaidLinesWidget::mouseReleaseEvent(QMouseEvent* event)
{
    if (!m_Band.Release(*event))
        return;
    update();
    const QPointer<OverlaidLinesWidget> self(this);
    if (m_Band.IsValid())
        askToReject(m_Band.GetBox());
    if (self)
        dragBox({});
}

std::vector<int> OverlaidLinesWidget::findResults(const QRect& box) const
{
    std::vector<int> marked = m_Lines->FindLines(box);
    marked.erase(
        std::remove_if(marked.begin(), marked.end(), [this](int line) { return !isResult(line); }),
        marked.end());
    return marked;
}

void OverlaidLinesWidget::askToReject(const QRect& box)
{
    const std::vector<int> marked = findResults(box);
    if (marked.empty())
        return;
    const QString question =
        tr("Are you sure you want to reject %1 results?").arg(int(marked.size()));
    if (!AskYesNo(this, tr("Reject Results"), question))
        return;
    rejectLines(marked);
    markStale();
}

bool OverlaidLinesWidget::isResult(int) const
{
    return true;
}

void OverlaidLinesWidget::rejectLines(const std::vector<int>& lines)
{
    for (auto line = lines.rbegin(); line != lines.rend(); ++line)
        m_Lines->RemoveLine(*line);
}
