#include "plotareawidget.h"

#include "cuttablelineplot.h"
#include "dataset.h"
#include "pixelmath.h"
#include "pixmapcache.h"
#include "plotlook.h"
#include "selectionrange.h"
#include "timeaxis.h"
#include "verticalaxis.h"
#include <QPaintEvent>
#include <QPainter>
#include <algorithm>
#include <cmath>

namespace
{
constexpr int tileWidth = PixmapCache::Width;
constexpr int cuttablePlots = 1;
constexpr int plotGap = 5;
} // namespace

PlotAreaWidget::PlotAreaWidget(QWidget* parent) : QWidget(parent) {}

PlotAreaWidget::~PlotAreaWidget() = default;

void PlotAreaWidget::SetDataSet(DataSet* dataSet)
{
    m_DataSet = dataSet;
    m_LostPlots.clear();
    m_Plots.clear();
    repaintAll();
}

void PlotAreaWidget::SetCutCollection(CutCollection* cuts)
{
    m_CutCollection = cuts;
    for (const auto& plot : m_Plots)
        plot->SetCutCollection(cuts);
    update();
}

void PlotAreaWidget::SetLeftMargin(int margin)
{
    m_LeftMargin = margin;
    repaintAll();
}

void PlotAreaWidget::SetRightMargin(int margin)
{
    m_RightMargin = margin;
    repaintAll();
}

void PlotAreaWidget::SetVisibleRange(int from, int to)
{
    constexpr int surroundings = 100;
    const bool known = from != -1 && to != -1;
    m_VisibleFrom = known ? from - surroundings : from;
    m_VisibleTo = known ? to + surroundings : to;
    RepaintCache();
    update();
}

int PlotAreaWidget::PlotHeight() const
{
    const int count = GetPlotCount();
    return (height() - 1 - plotGap * count - 4) / count;
}

std::optional<RowSpan> PlotAreaWidget::GetRange() const
{
    if (m_From == -1 || m_To == -1 || m_From == m_To)
        return std::nullopt;
    return RowSpan{m_From, m_To};
}

std::unique_ptr<LinePlot> PlotAreaWidget::makePlot(int attribute)
{
    if (m_PlotType == cuttablePlots)
        return std::make_unique<CuttableLinePlot>(attribute, m_CutCollection);
    return std::make_unique<LinePlot>(attribute);
}

void PlotAreaWidget::AddPlot(int attribute)
{
    auto plot = makePlot(attribute);
    plot->SetDataSet(m_DataSet);
    appendPlot(std::move(plot));
}

void PlotAreaWidget::AddPlot(double* values, int size, const QString& name)
{
    auto plot = makePlot(-1);
    plot->SetData(values, size, name);
    appendPlot(std::move(plot));
}

void PlotAreaWidget::appendPlot(std::unique_ptr<LinePlot> plot)
{
    m_Plots.push_back(std::move(plot));
    if (const auto rows = GetRange())
        m_Plots.back()->SetRange(rows->m_From, rows->m_To);
    repaintAll();
}

void PlotAreaWidget::RemovePlot(int attribute)
{
    const auto shows = [=](const auto& plot) { return plot->GetAttribute() == attribute; };
    const auto found = std::find_if(m_Plots.begin(), m_Plots.end(), shows);
    if (found == m_Plots.end())
        return;
    m_Plots.erase(found);
    repaintAll();
}

void PlotAreaWidget::TogglePlot(int attribute)
{
    const auto shows = [=](const auto& plot) { return plot->GetAttribute() == attribute; };
    if (std::any_of(m_Plots.begin(), m_Plots.end(), shows))
        RemovePlot(attribute);
    else
        AddPlot(attribute);
}

void PlotAreaWidget::UpdateAttributes()
{
    bool hasChanged = false;
    for (const auto& plot : m_Plots)
        hasChanged = plot->FollowAttribute() || hasChanged;
    const bool hasLost = takeLostPlots();
    // Plots that come back paint all of them anew by themselves.
    if (!returnLostPlots() && (hasChanged || hasLost))
        repaintAll();
}

bool PlotAreaWidget::takeLostPlots()
{
    const auto isLost = [](const auto& plot) { return plot->HasLostAttribute(); };
    for (const auto& plot : m_Plots) {
        if (isLost(plot))
            m_LostPlots.append(plot->GetVerticalAxis()->GetTitle());
    }
    const auto end = std::remove_if(m_Plots.begin(), m_Plots.end(), isLost);
    const bool hasLost = end != m_Plots.end();
    m_Plots.erase(end, m_Plots.end());
    return hasLost;
}

bool PlotAreaWidget::returnLostPlots()
{
    bool isBack = false;
    for (const QString& name : QStringList(m_LostPlots)) {
        const int attribute = m_DataSet ? m_DataSet->GetAttributeIndex(name) : -1;
        if (attribute == -1)
            continue;
        m_LostPlots.removeOne(name);
        AddPlot(attribute);
        isBack = true;
    }
    return isBack;
}

void PlotAreaWidget::PlotDataRange(int from, int to)
{
    m_From = from;
    m_To = to;
    for (const auto& plot : m_Plots)
        plot->SetRange(from, to);
    repaintAll();
}

void PlotAreaWidget::ClearAndAddPlot(int attribute)
{
    ClearPlot();
    AddPlot(attribute);
}

void PlotAreaWidget::ClearPlotRange()
{
    m_From = -1;
    m_To = -1;
    for (const auto& plot : m_Plots) {
        if (const DataSet* shown = plot->GetDataSet())
            plot->SetRange(0, shown->GetRowCount());
    }
}

TimeAxis* PlotAreaWidget::GetTimeAxis() const
{
    return m_Plots.empty() ? nullptr : m_Plots.front()->GetTimeAxis();
}

void PlotAreaWidget::ClearPlot()
{
    m_LostPlots.clear();
    m_Plots.clear();
}

void PlotAreaWidget::ResizePlots(int width, int height)
{
    // Marks the new size as taken care of, so that resizeEvent does not repaint on its own.
    m_TileSize = QSize(width, height);
    resize(width, height);
    rebuildTiles();
}

void PlotAreaWidget::repaintAll()
{
    ResizePlots(width(), height());
    RepaintCache();
}

void PlotAreaWidget::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    if (size() == m_TileSize)
        return;
    rebuildTiles();
    RepaintCache();
}

void PlotAreaWidget::layoutPlots()
{
    for (const auto& plot : m_Plots) {
        plot->SetLeftMargin(m_LeftMargin);
        plot->SetRightMargin(m_RightMargin);
        plot->SetSize(float(PlotHeight()), float(width()));
    }
}

void PlotAreaWidget::rebuildTiles()
{
    m_Tiles.clear();
    m_Background = QPixmap();
    m_TileSize = size();
    layoutPlots();
    const QRect contents = contentsRect();
    if (contents.isEmpty())
        return;
    m_Tiles.resize(size_t(std::ceil(contents.width() / double(tileWidth))));
    makeBackground();
    makeTile(0);
}

void PlotAreaWidget::makeBackground()
{
    constexpr double gridOpacity = 0.1;
    m_Background = PixmapCache(contentsRect().height(), devicePixelRatioF());
    m_Background.fill(Qt::white);
    QPainter painter(&m_Background);
    for (int i = 0; i < GetPlotCount(); ++i) {
        const int top = i * PlotHeight() + plotGap;
        const int bottom = (i + 1) * PlotHeight() - 7;
        PaintGrid(painter, 0, top, tileWidth, bottom, gridOpacity);
    }
}

void PlotAreaWidget::makeTile(int index)
{
    auto& tile = m_Tiles[size_t(index)];
    tile = std::make_unique<PixmapCache>(contentsRect().height(), devicePixelRatioF());
    QPainter painter(tile.get());
    painter.drawPixmap(0, 0, m_Background);
    if (index == 0)
        painter.fillRect(QRect(0, 0, m_LeftMargin, contentsRect().height()), Qt::white);
}

RowSpan PlotAreaWidget::tileRange() const
{
    if (!m_ViewportOnly)
        return {0, GetTileCount()};
    constexpr float width = tileWidth;
    constexpr float surroundings = 10;
    const float first = (float(m_VisibleFrom) - surroundings + width) / width - 1;
    const float last = (float(m_VisibleTo) + surroundings + width) / width + 1;
    return {TruncateToInt(double(std::floor(std::max(0.0F, first)))),
            TruncateToInt(double(std::ceil(std::min(float(GetTileCount()), last))))};
}

bool PlotAreaWidget::isFarFromView(int tile) const
{
    const bool known = m_VisibleFrom != -1 && m_VisibleTo != -1;
    if (!m_ViewportOnly || !known)
        return false;
    const int left = tile * tileWidth;
    return left + tileWidth <= m_VisibleFrom - tileWidth || left >= m_VisibleTo + tileWidth;
}

void PlotAreaWidget::RepaintCache()
{
    paintCache();
    update();
}

void PlotAreaWidget::paintCache()
{
    // The window may have moved to a screen of another pixel density.
    if (!m_Tiles.empty() && m_Background.devicePixelRatioF() != devicePixelRatioF())
        rebuildTiles();
    if (m_Plots.empty())
        return;
    const RowSpan tiles = tileRange();
    for (int i = tiles.m_From; i < tiles.m_To; ++i) {
        if (!m_Tiles[size_t(i)])
            makeTile(i);
        if (!m_Tiles[size_t(i)]->m_Painted && !isFarFromView(i))
            paintTile(i);
    }
}

void PlotAreaWidget::paintTile(int index)
{
    // What the line needs beyond the tile's edges to run on into its neighbours.
    constexpr int joint = 4;
    PixmapCache& tile = *m_Tiles[size_t(index)];
    const int left = index * tileWidth;
    QPainter painter(&tile);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    painter.setClipRect(QRect(0, 0, tileWidth, contentsRect().height()));
    painter.translate(-left, 0);
    for (const auto& plot : m_Plots) {
        if (plot != m_Plots.front())
            painter.translate(0, plotGap);
        // Only a plot with its rows at absolute places can paint a part of them in place.
        if (m_ViewportOnly && plot->HasAbsoluteRows()) {
            const TimeAxis& axis = *plot->GetTimeAxis();
            const RowSpan rows =
                axis.RowsUnder(left - joint, left + tileWidth + joint, axis.GetRows());
            plot->Paint(painter, rows.m_From, rows.m_To, false);
        } else {
            plot->Paint(painter, false);
        }
        painter.translate(0, PlotHeight());
    }
    tile.m_Painted = true;
}

void PlotAreaWidget::paintEvent(QPaintEvent* event)
{
    if (m_Tiles.empty())
        return;
    QPainter painter(this);
    const RowSpan tiles = tileRange();
    for (int i = tiles.m_From; i < tiles.m_To; ++i) {
        const QRect area(i * tileWidth, 0, tileWidth, contentsRect().height());
        if (!event->rect().intersects(area))
            continue;
        if (m_Tiles[size_t(i)])
            painter.drawPixmap(area.topLeft(), *m_Tiles[size_t(i)]);
        else
            painter.fillRect(area, Qt::white);
    }
}

void PlotAreaWidget::PaintWidget(QPainter& painter)
{
    painter.fillRect(rect(), Qt::white);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.save();
    for (const auto& plot : m_Plots) {
        painter.translate(0, plotGap);
        plot->Paint(painter, true);
        painter.translate(0, PlotHeight());
    }
    painter.restore();
}

void PlotAreaWidget::paintRows(QPainter& painter, const RowSpan& rows, const QColor& color,
                               bool outline) const
{
    const TimeAxis* axis = GetTimeAxis();
    if (!axis || rows.GetLength() < 0)
        return;
    const int origin = std::max(m_From, 0);
    const double left = axis->ToX(rows.m_From - origin);
    const double right = axis->ToX(rows.m_To - origin);
    const QRectF area(left, 0, right - left, height() - 1);
    painter.fillRect(area, color);
    if (!outline)
        return;
    painter.setPen(Qt::black);
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(area);
}

bool PlotAreaWidget::toRows(const SelectionRange& selection, int& from, int& to) const
{
    const TimeAxis* axis = GetTimeAxis();
    if (!axis || !selection.IsValid())
        return false;
    const int origin = std::max(m_From, 0);
    from = origin + axis->ToIndex(float(selection.GetSelectionStart()));
    to = origin + axis->ToIndex(float(selection.GetSelectionEnd()));
    return true;
}
