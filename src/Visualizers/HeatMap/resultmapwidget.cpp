#include "resultmapwidget.h"

#include "colormaps.h"
#include "dataset.h"
#include "lineplotwidget.h"
#include "plotlook.h"
#include <QDialog>
#include <QMouseEvent>
#include <QPainter>
#include <QVBoxLayout>
#include <algorithm>
#include <cmath>
#include <iterator>

namespace
{

// The scale that LinearColorMapWidget shows.
constexpr int legendColorMap = 3;

} // namespace

ResultMapWidget::ResultMapWidget(QWidget* parent) : QWidget(parent), m_ColorMap(legendColorMap)
{
    setMinimumHeight(24);
    setCursor(Qt::CrossCursor);
    setToolTip(tr("Drag with the left button to reject matches, with the right button to see the "
                  "data."));
}

void ResultMapWidget::SetResults(float** results, int factors, int steps)
{
    m_Results = {results, factors, steps};
    m_Matches.reset();
    m_RemovedSteps.clear();
    m_Band.Clear();
    markStale();
}

void ResultMapWidget::SetMatches(const std::shared_ptr<const CenterPoints>& matches)
{
    m_Matches = matches;
    markMatchesStale();
}

QList<int> ResultMapWidget::GetRemovedSteps() const
{
    return {m_RemovedSteps.begin(), m_RemovedSteps.end()};
}

void ResultMapWidget::ItemsRemovedFromPlot(const QList<int>& steps)
{
    std::vector<int> sorted(steps.begin(), steps.end());
    std::sort(sorted.begin(), sorted.end());
    addRemovedSteps(std::move(sorted));
}

void ResultMapWidget::SetRemovedSteps(const std::vector<int>& steps)
{
    m_RemovedSteps = steps;
    markMatchesStale();
}

void ResultMapWidget::addRemovedSteps(std::vector<int> steps)
{
    std::vector<int> all;
    std::set_union(steps.begin(), steps.end(), m_RemovedSteps.begin(), m_RemovedSteps.end(),
                   std::back_inserter(all));
    all.erase(std::unique(all.begin(), all.end()), all.end());
    m_RemovedSteps = std::move(all);
    markMatchesStale();
}

void ResultMapWidget::SetThreshold(float threshold)
{
    m_Threshold = threshold;
    invalidatePicture();
}

void ResultMapWidget::SetColorMap(int scheme)
{
    m_ColorMap = scheme;
    invalidatePicture();
}

StepScale ResultMapWidget::makeScale() const
{
    return StepScale::OverAll(m_Results.m_Steps, width());
}

QColor ResultMapWidget::colorOf(float confidence) const
{
    float red = 0;
    float green = 0;
    float blue = 0;
    ColorMaps::GetColor(confidence, &red, &green, &blue, m_ColorMap);
    return QColor::fromRgbF(double(red), double(green), double(blue));
}

int ResultMapWidget::stepWidth() const
{
    const StepScale scale = makeScale();
    const int from = scale.GetFrom();
    return std::max(int(std::ceil(scale.ToPixel(from + 1) - scale.ToPixel(from))), 1);
}

QRect ResultMapWidget::rowOf(int factor) const
{
    const int rows = std::max(m_Results.m_Factors, 1);
    const int top = height() * factor / rows;
    return {0, top, width(), height() * (factor + 1) / rows - top};
}

void ResultMapWidget::invalidatePicture()
{
    m_Picture.Invalidate();
    update();
}

void ResultMapWidget::markStale()
{
    m_AreResultsStale = true;
    markMatchesStale();
}

void ResultMapWidget::markMatchesStale()
{
    m_AreMatchesStale = true;
    invalidatePicture();
}

void ResultMapWidget::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    m_Band.Clear();
    markStale();
}

CenterPoints ResultMapWidget::visibleMatches() const
{
    return m_Matches ? WithoutSteps(*m_Matches, m_RemovedSteps) : CenterPoints();
}

void ResultMapWidget::reduce(const StepScale& scale)
{
    if (m_AreResultsStale)
        reduceResults(scale);
    if (m_AreMatchesStale)
        reduceMatches(visibleMatches(), scale);
    m_AreResultsStale = false;
    m_AreMatchesStale = false;
}

void ResultMapWidget::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    m_Picture.Paint(painter, {}, size(), devicePixelRatioF(), [this](QPainter& map) {
        const StepScale scale = makeScale();
        reduce(scale);
        const int left = int(scale.GetStart());
        map.fillRect(left, 0, width() - left, height(), Qt::white);
        paintMap(map);
    });
    painter.setOpacity(MarkOpacity);
    m_Band.PaintBand(painter, height());
}

void ResultMapWidget::mousePressEvent(QMouseEvent* event)
{
    const double left = double(makeScale().GetStart());
    if (!m_Results.IsEmpty() &&
        m_Band.Press(*event, left, RubberBand::Unlimited, Qt::LeftButton | Qt::RightButton))
        update();
}

void ResultMapWidget::mouseMoveEvent(QMouseEvent* event)
{
    const double left = double(makeScale().GetStart());
    if (!m_Band.Move(*event, left, std::max(left, double(width()))))
        return;
    update();
    if (m_Band.GetButton() == Qt::LeftButton && m_Band.IsValid())
        emit AboutToRemove(int(stepsOnBand(m_Band).size()));
}

void ResultMapWidget::mouseReleaseEvent(QMouseEvent* event)
{
    if (!m_Band.Release(*event))
        return;
    const RubberBand band = m_Band;
    m_Band.Clear();
    update();
    emit AboutToRemove(0);
    if (!band.IsValid())
        return;
    const StepScale scale = makeScale();
    if (band.GetButton() == Qt::LeftButton)
        removeMatches(stepsOnBand(band));
    else
        showSpan(scale.ToStep(band.GetSelectionStart()), scale.ToStep(band.GetSelectionEnd()));
}

std::vector<int> ResultMapWidget::stepsOnBand(const RubberBand& band) const
{
    const StepScale scale = makeScale();
    return StepsOfMatches(visibleMatches(), scale.ToStep(band.GetSelectionStart()),
                          scale.ToStep(band.GetSelectionEnd()));
}

void ResultMapWidget::removeMatches(std::vector<int> steps)
{
    if (steps.empty())
        return;
    addRemovedSteps(std::move(steps));
    emit ItemsRemoved();
}

void ResultMapWidget::showSpan(double first, double last)
{
    const int rows = m_DataSet ? m_DataSet->GetRowCount() : 0;
    const int from = std::max(int(std::floor(first)), 0);
    const int to = int(std::min(std::ceil(last), double(rows)));
    if (to - from < 1 || m_Attribute < 0 || m_Attribute >= m_DataSet->GetAttributeCount())
        return;
    auto* dialog = new QDialog(this);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setWindowTitle(tr("Line Plot"));
    auto* plot = new LinePlotWidget(m_Attribute);
    plot->SetDataSet(m_DataSet);
    plot->SetRange(from, to);
    (new QVBoxLayout(dialog))->addWidget(plot);
    dialog->resize(600, 300);
    dialog->open();
}
