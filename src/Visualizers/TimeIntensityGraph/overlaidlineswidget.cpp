#include "overlaidlineswidget.h"

#include "overlaidlines.h"
#include <QMessageBox>
#include <QMouseEvent>
#include <QPainter>
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
    m_Cache = QPixmap();
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
    constexpr double bandOpacity = 0.4;
    if (m_Cache.isNull() || m_Cache.devicePixelRatioF() != devicePixelRatioF()) {
        m_Cache = QPixmap(size() * devicePixelRatioF());
        m_Cache.setDevicePixelRatio(devicePixelRatioF());
        m_Cache.fill(Qt::white);
        QPainter cachePainter(&m_Cache);
        cachePainter.setRenderHint(QPainter::Antialiasing);
        m_Lines->Paint(cachePainter);
    }
    QPainter painter(this);
    painter.drawPixmap(0, 0, m_Cache);
    if (!m_Dragging || m_Band.isEmpty())
        return;
    painter.setOpacity(bandOpacity);
    painter.fillRect(m_Band, Qt::yellow);
    painter.setPen(Qt::black);
    painter.drawRect(m_Band);
}

void OverlaidLinesWidget::mousePressEvent(QMouseEvent* event)
{
    if (!m_Rejecting || event->button() != Qt::LeftButton)
        return;
    m_Dragging = true;
    m_BandOrigin = event->pos();
    m_Band = QRect();
}

void OverlaidLinesWidget::mouseMoveEvent(QMouseEvent* event)
{
    if (!m_Dragging)
        return;
    m_Band = QRect(m_BandOrigin, event->pos()).normalized();
    update();
}

void OverlaidLinesWidget::mouseReleaseEvent(QMouseEvent* event)
{
    if (!m_Dragging || event->button() != Qt::LeftButton)
        return;
    m_Dragging = false;
    update();
    if (!m_Band.isEmpty())
        askToReject(m_Band);
}

void OverlaidLinesWidget::askToReject(const QRect& box)
{
    std::vector<int> marked = m_Lines->FindLines(box);
    marked.erase(
        std::remove_if(marked.begin(), marked.end(), [this](int line) { return !isResult(line); }),
        marked.end());
    if (marked.empty())
        return;
    const QString question =
        tr("Are you sure you want to reject %1 results?").arg(int(marked.size()));
    if (QMessageBox::question(this, tr("Reject Results"), question) != QMessageBox::Yes)
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
