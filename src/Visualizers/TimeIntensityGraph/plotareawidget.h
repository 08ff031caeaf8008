#pragma once

#include "plotmargin.h"
#include "rowspan.h"
#include <QPixmap>
#include <QWidget>
#include <memory>
#include <optional>
#include <vector>

class CutCollection;
class DataSet;
class LinePlot;
class PixmapCache;
struct SelectionRange;
class TimeAxis;

/// Plots above each other, painted once into tiles of a fixed width; paintEvent copies tiles.
///
/// A change of data, colour or range makes no tile stale by itself: callers go through
/// ResizePlots, which throws all tiles away.
class PlotAreaWidget : public QWidget
{
    Q_OBJECT
public:
    explicit PlotAreaWidget(QWidget* parent = nullptr);
    ~PlotAreaWidget() override;

    /// Drops all plots.
    virtual void SetDataSet(DataSet* dataSet);
    virtual void SetCutCollection(CutCollection* cuts);
    /// 1 means cuttable plots.
    void SetPlotType(int type) { m_PlotType = type; }
    /// Paints only the tiles near the visible range.
    void SetViewportOnly(bool viewportOnly) { m_ViewportOnly = viewportOnly; }
    void SetLeftMargin(int margin);
    void SetRightMargin(int margin);
    /// The pixels that the surroundings show; -1 in either when they are not known.
    void SetVisibleRange(int from, int to);
    void ResizePlots(int width, int height);

    /// The height of one plot; there must be one.
    int PlotHeight() const;
    int GetPlotCount() const { return int(m_Plots.size()); }
    LinePlot* GetPlot(int index) const { return m_Plots[size_t(index)].get(); }
    /// None when there is no stored range, or an empty one.
    std::optional<RowSpan> GetRange() const;

    int GetTileCount() const { return int(m_Tiles.size()); }
    /// Null for a tile that has not been needed yet.
    const PixmapCache* GetTile(int index) const { return m_Tiles[size_t(index)].get(); }

public slots:
    virtual void AddPlot(int attribute);
    void AddPlot(double* values, int size, const QString& name);
    void RemovePlot(int attribute);
    /// Adds a plot of the attribute, or removes the one there is.
    void TogglePlot(int attribute);
    /// Shows only the rows from up to, but without, to.
    void PlotDataRange(int from, int to);
    void ClearAndAddPlot(int attribute);
    /// Back to all rows, without a repaint.
    void ClearPlotRange();
    void RepaintCache();
    /// The first plot's time axis, through which all rows become pixels and back; null when
    /// there is no plot.
    TimeAxis* GetTimeAxis() const;
    void ClearPlot();
    /// Plots follow their attributes by name. One whose attribute is gone goes, too, and comes back
    /// with it, below the others. Nothing is painted anew that looks as before.
    void UpdateAttributes();
    /// Paints everything without tiles, for an export.
    void PaintWidget(QPainter& painter);

protected:
    virtual std::unique_ptr<LinePlot> makePlot(int attribute);
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

    /// Fills the pixels of rows of the data set, from the widget's top to its bottom.
    void paintRows(QPainter& painter, const RowSpan& rows, const QColor& color, bool outline) const;
    /// The rows of the data set at both ends of a selection, the lower one first. False without a
    /// selection.
    bool toRows(const SelectionRange& selection, int& from, int& to) const;
    /// Every plot anew, after a change in what they show.
    void repaintAll();

    bool m_ViewportOnly = false;
    std::vector<std::unique_ptr<LinePlot>> m_Plots;
    DataSet* m_DataSet = nullptr;
    CutCollection* m_CutCollection = nullptr;
    int m_From = -1;
    int m_To = -1;
    int m_LeftMargin = PlotLeftMargin;
    int m_RightMargin = 0;
    int m_VisibleFrom = -1;
    int m_VisibleTo = -1;
    int m_PlotType = 0;
    QPixmap m_Background;
    std::vector<std::unique_ptr<PixmapCache>> m_Tiles;

private:
    bool takeLostPlots();
    bool returnLostPlots();
    void appendPlot(std::unique_ptr<LinePlot> plot);
    void layoutPlots();
    void rebuildTiles();
    void makeBackground();
    void makeTile(int index);
    RowSpan tileRange() const;
    bool isFarFromView(int tile) const;
    void paintCache();
    void paintTile(int index);

    // Of plots that went with their attributes.
    QStringList m_LostPlots;
    // The size that the tiles were made for.
    QSize m_TileSize;
};
