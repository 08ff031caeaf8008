#include "cuttablelineplotwidget.h"

#include "cutcollection.h"
#include "cuttableamplitudeline.h"
#include "cuttablelineplot.h"
#include "dataset.h"
#include "lineplotwidget.h"
#include "openwindow.h"
#include "pixelmath.h"
#include "plotlook.h"
#include "segmentpainter.h"
#include "timeaxis.h"
#include "verticalaxis.h"
#include <QDrag>
#include <QMenu>
#include <QMimeData>
#include <QMouseEvent>
#include <QPainter>
#include <algorithm>
#include <cmath>

CuttableLinePlotWidget::CuttableLinePlotWidget(QWidget* parent)
    : PlotAreaWidget(parent), m_ContextMenu(new QMenu(this))
{
    SetPlotType(1);
    SetViewportOnly(true);
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    setContextMenuPolicy(Qt::CustomContextMenu);
    connect(this, &QWidget::customContextMenuRequested, this,
            &CuttableLinePlotWidget::showContextMenu);
}

CuttableLinePlotWidget::~CuttableLinePlotWidget() = default;

void CuttableLinePlotWidget::SetRecording(LiveRecording* recording)
{
    if (m_Recording)
        m_Recording->disconnect(this);
    m_Recording = recording;
    SetDataSet(DataOf(recording));
    SetCutCollection(CutsOf(recording));
    SetLabelCollection(LabelsOf(recording));
    if (!recording)
        return;
    connect(recording, &LiveRecording::SegmentsChanged, this,
            &CuttableLinePlotWidget::UpdateCutViz);
    connect(recording, &LiveRecording::AttributesChanged, this,
            &CuttableLinePlotWidget::UpdateAttributes);
}

void CuttableLinePlotWidget::SetDataSet(DataSet* dataSet)
{
    m_SelectedIndex = -1;
    m_Selection.Clear();
    // Its entries are about a segment of the old recording.
    m_ContextMenu->close();
    PlotAreaWidget::SetDataSet(dataSet);
}

std::optional<RowSpan> CuttableLinePlotWidget::GetSelectedRange() const
{
    const TimeAxis* axis = GetTimeAxis();
    if (!axis || !m_Selection.IsValid())
        return std::nullopt;
    return RowSpan{axis->ToIndex(float(m_Selection.m_Start)),
                   axis->ToIndex(float(m_Selection.m_End))};
}

std::optional<int> CuttableLinePlotWidget::GetSelectedRow() const
{
    if (m_SelectedIndex < 0)
        return std::nullopt;
    return m_ShowLabeled ? m_SelectedIndex : computeAdjustedTimePosition(m_SelectedIndex);
}

int CuttableLinePlotWidget::computeAdjustedTimePosition(int index) const
{
    int shift = 0;
    const int count = m_CutCollection ? m_CutCollection->GetSegmentCount() : 0;
    for (int i = 0; i < count; ++i) {
        const CutSegment& segment = *m_CutCollection->GetSegment(i);
        if (segment.GetState() == CutSegment::SEGMENT_LABELED)
            shift += segment.GetLength() - CollapsedWidth(segment);
        if (segment.GetFrom() <= index + shift && index + shift <= segment.GetTo())
            break;
    }
    return index + shift;
}

void CuttableLinePlotWidget::AddPlot(int attributeID)
{
    PlotAreaWidget::AddPlot(attributeID);
    ShowLabeledData(m_ShowLabeled);
}

void CuttableLinePlotWidget::ClearSelection()
{
    m_Selection.Clear();
    update();
}

void CuttableLinePlotWidget::ShowLabeledData(bool show)
{
    m_ShowLabeled = show;
    for (const auto& plot : m_Plots)
        plot->SetShowLabeled(show);
    RepaintCache();
}

void CuttableLinePlotWidget::UpdateCutViz()
{
    if (m_ShowLabeled)
        update();
    else
        RepaintCache();
}

void CuttableLinePlotWidget::ResetVerticalAxes()
{
    for (const auto& plot : m_Plots)
        plot->ResetAxis();
    repaintAll();
}

void CuttableLinePlotWidget::SetEnableOverlay(bool enable)
{
    m_Overlay = enable;
    update();
}

void CuttableLinePlotWidget::updateTimeAxis()
{
    for (const auto& plot : m_Plots) {
        if (m_DataSet)
            plot->GetTimeAxis()->SetNumberOfPoints(m_DataSet->GetRowCount());
    }
    update();
}

void CuttableLinePlotWidget::resizeEvent(QResizeEvent* event)
{
    m_Selection.Clear();
    PlotAreaWidget::resizeEvent(event);
}

void CuttableLinePlotWidget::mousePressEvent(QMouseEvent* event)
{
    const TimeAxis* axis = GetTimeAxis();
    if (event->button() == Qt::RightButton)
        m_SelectedIndex = -1;
    if (!axis || !m_Selection.Press(*event, axis->GetStart().x()))
        return;
    m_SelectedIndex = -1;
    update();
}

void CuttableLinePlotWidget::mouseMoveEvent(QMouseEvent* event)
{
    m_MouseX = event->pos().x();
    if (event->buttons() & Qt::LeftButton) {
        m_DragX = m_MouseX;
        m_Selection.Move(*event);
    }
    update();
}

void CuttableLinePlotWidget::keyPressEvent(QKeyEvent* event)
{
    constexpr int step = 5;
    switch (event->key()) {
    case Qt::Key_Left:
        m_SelectedIndex = std::max(m_SelectedIndex - step, 0);
        break;
    case Qt::Key_Right:
        m_SelectedIndex =
            std::min(m_SelectedIndex + step, m_DataSet ? m_DataSet->GetRowCount() : 0);
        break;
    case Qt::Key_C:
        emit CutRequested();
        break;
    case Qt::Key_Delete:
        emit DeleteActionRequested();
        break;
    case Qt::Key_Escape:
        m_SelectedIndex = -1;
        ClearSelection();
        break;
    default:
        PlotAreaWidget::keyPressEvent(event);
        return;
    }
    update();
}

CutSegment* CuttableLinePlotWidget::segmentAt(double x, int& index) const
{
    if (!m_CutCollection)
        return nullptr;
    const int row = GetTimeAxis()->ToIndex(float(x));
    return m_CutCollection->FindSegment(m_ShowLabeled ? row : computeAdjustedTimePosition(row),
                                        index);
}

void CuttableLinePlotWidget::mouseDoubleClickEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton || !GetTimeAxis())
        return;
    m_SelectedIndex = -1;
    int index = 0;
    const CutSegment* segment = segmentAt(event->pos().x(), index);
    if (!segment)
        return;
    auto* mime = new QMimeData;
    mime->setData(QStringLiteral("signal_start_end"), QByteArray::number(index));
    // Deletes itself once it has been dropped.
    auto* drag = new QDrag(this);
    drag->setMimeData(mime);
    drag->setPixmap(dragPicture(*segment));
    runDrag(*drag);
    update();
}

void CuttableLinePlotWidget::runDrag(QDrag& drag)
{
    drag.exec(Qt::MoveAction);
}

QPixmap CuttableLinePlotWidget::dragPicture(const CutSegment& segment) const
{
    constexpr int width = 300;
    constexpr int height = 100;
    QPixmap picture(QSize(width, height) * devicePixelRatioF());
    picture.setDevicePixelRatio(devicePixelRatioF());
    picture.fill(Qt::white);
    LinePlot plot(0);
    plot.SetDataSet(m_DataSet);
    plot.SetSize(height, width);
    plot.SetRange(segment.GetFrom(), segment.GetTo());
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    plot.Paint(painter, true);
    return picture;
}

struct CuttableLinePlotWidget::MenuEntry {
    const char* m_Text;
    bool (CuttableLinePlotWidget::*m_IsVisible)(const CutSegment&) const;
    void (CuttableLinePlotWidget::*m_Run)(const CutSegment&);
};

const std::vector<CuttableLinePlotWidget::MenuEntry>& CuttableLinePlotWidget::menuEntries()
{
    using Widget = CuttableLinePlotWidget;
    static const std::vector<MenuEntry> entries{
        {"Zoom On Region", &Widget::canZoom, &Widget::zoomOnSelection},
        {"Save Template", &Widget::canSave, &Widget::requestSave},
        {"Search Selection", &Widget::canZoom, &Widget::requestSearch},
        {"Open Plot", &Widget::canOpenPlot, &Widget::openPlot},
        {"Move To", &Widget::canOpenPlot, &Widget::requestMove},
        {"Remove Label(s)", &Widget::canRemoveLabel, &Widget::requestDelete},
    };
    return entries;
}

void CuttableLinePlotWidget::showContextMenu(QPoint point)
{
    const TimeAxis* axis = GetTimeAxis();
    if (!axis)
        return;
    m_SelectedIndex = axis->ToIndex(float(point.x()));
    int index = 0;
    const CutSegment* segment = segmentAt(point.x(), index);
    if (!segment)
        return;
    m_ContextMenu->clear();
    for (const MenuEntry& entry : menuEntries()) {
        if (!(this->*entry.m_IsVisible)(*segment))
            continue;
        const auto run = entry.m_Run;
        m_ContextMenu->addAction(tr(entry.m_Text), this, [=] { (this->*run)(*segment); });
    }
    if (!m_ContextMenu->isEmpty())
        m_ContextMenu->popup(mapToGlobal(point));
}

bool CuttableLinePlotWidget::canZoom(const CutSegment&) const
{
    return m_Selection.IsValid() && m_Selection.m_Start <= m_Selection.m_End;
}

bool CuttableLinePlotWidget::canOpenPlot(const CutSegment& segment) const
{
    return !canZoom(segment);
}

bool CuttableLinePlotWidget::canRemoveLabel(const CutSegment& segment) const
{
    return !canZoom(segment) && segment.GetState() != CutSegment::SEGMENT_CUT;
}

void CuttableLinePlotWidget::zoomOnSelection(const CutSegment&)
{
    if (const auto rows = GetSelectedRange())
        emit ZoomOnRegion(rows->m_From, rows->m_To);
}

void CuttableLinePlotWidget::openPlot(const CutSegment& segment)
{
    auto* window = new LinePlotWidget(0);
    if (m_Recording)
        window->SetRecording(m_Recording);
    else
        window->SetDataSet(m_DataSet);
    window->SetRange(segment.GetFrom(), segment.GetTo());
    window->resize(600, 300);
    OpenWindow(window, this, m_Recording ? m_Recording->shared_from_this() : nullptr);
}

void CuttableLinePlotWidget::paintEvent(QPaintEvent* event)
{
    PlotAreaWidget::paintEvent(event);
    const TimeAxis* axis = GetTimeAxis();
    if (!axis)
        return;
    QPainter painter(this);
    painter.setFont(PlotFont());
    paintTimeAxis(painter);
    painter.setOpacity(MarkOpacity);
    paintSelection(painter);
    if (m_MouseX > 0 && m_Overlay)
        paintOverlay(painter);
    if (!m_CutCollection)
        return;
    const SegmentPainter segments(*m_CutCollection, *axis, event->rect(), height());
    if (m_ShowLabeled)
        segments.PaintFills(painter);
    segments.PaintOutlines(painter, !m_ShowLabeled);
}

void CuttableLinePlotWidget::paintTimeAxis(QPainter& painter) const
{
    constexpr int spacing = 200;
    const TimeAxis* axis = GetTimeAxis();
    const double start = axis->GetStart().x();
    const double end = std::min(axis->GetEnd().x(), double(width()));
    const int y = height() - 20;
    painter.setPen(Qt::black);
    painter.drawLine(QPointF(start, y), QPointF(end, y));
    const bool everywhere = m_VisibleTo < 0 || m_VisibleTo == 200;
    for (double x = start; x < axis->GetEnd().x(); x += spacing) {
        if (!everywhere && (x < m_VisibleFrom || x > m_VisibleTo))
            continue;
        painter.drawLine(QPointF(x, y), QPointF(x, y + 5));
        const int row = axis->ToIndex(float(x));
        if (!m_DataSet || row < 0 || row >= m_DataSet->GetRowCount())
            continue;
        const QString label = m_DataSet->GetRowLabel(row);
        const int labelWidth = painter.fontMetrics().horizontalAdvance(label);
        painter.drawText(QPointF(x - labelWidth / 2.0, height() - 5), label);
    }
}

void CuttableLinePlotWidget::paintSelection(QPainter& painter) const
{
    const std::optional<RowSpan> rows = GetSelectedRange();
    if (!rows)
        return;
    m_Selection.Paint(painter, height());
    painter.setPen(Qt::black);
    painter.drawText(
        QPointF(m_Selection.m_End + 5, 10),
        QString(QString::number(rows->GetLength()) % QStringLiteral(" Items Selected")));
}

void CuttableLinePlotWidget::paintOverlay(QPainter& painter) const
{
    constexpr int plotGap = 5;
    constexpr double distance = 10;
    painter.save();
    for (const auto& plot : m_Plots) {
        if (plot != m_Plots.front())
            painter.translate(0, plotGap);
        const VerticalAxis* axis = plot->GetVerticalAxis();
        axis->PaintAxis(painter, TruncateToInt(m_MouseX - axis->GetBottom().x() - distance));
        painter.translate(0, PlotHeight());
    }
    painter.restore();
}
