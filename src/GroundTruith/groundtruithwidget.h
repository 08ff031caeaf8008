#pragma once

#include "cachedpicture.h"
#include "lineplot.h"
#include <QWidget>
#include <vector>

class DataSet;
class GroundTruithBehaviorCollection;

/// One attribute as a line under the labels of a reference, each behaviour in its colour.
///
/// The widget can be wider than any pixmap, so it is painted in tiles. A tile is painted when it
/// comes in sight and dropped when the view has gone on to others.
class GroundTruithWidget : public QWidget
{
    Q_OBJECT
public:
    explicit GroundTruithWidget(QWidget* parent = nullptr);

    void SetDataSet(DataSet* dataSet);
    /// Not owned.
    void SetBehaviorCollection(GroundTruithBehaviorCollection* behaviors);
    void SetAttribute(int attribute);

    int GetTileCount() const { return int(m_Tiles.size()); }

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void rebuildTiles();
    qreal tileRatio() const;
    void showTile(QPainter& painter, int index);
    void dropTilesFarFrom(int index);
    void paintTile(QPainter& painter, int left);
    void paintBehaviors(QPainter& painter) const;

    DataSet* m_DataSet = nullptr;
    GroundTruithBehaviorCollection* m_BehaviorCollection = nullptr;
    LinePlot m_LinePlot{0};
    std::vector<CachedPicture> m_Tiles;
};
