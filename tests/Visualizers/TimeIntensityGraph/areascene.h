#pragma once

#include "lineplot.h"
#include "testdata.h"
#include "timeaxis.h"
#include <QImage>
#include <QPainter>

/// A plot area that shows the first attribute of a recording; rows stand 10 pixels apart from pixel
/// 40 on when it is (10 * rows - 5) pixels wide.
template <class Area>
struct AreaScene {
    explicit AreaScene(int rows, const QSize& size = {965, 200}, int attributes = 1)
        : m_Data(MakeRecording(rows, attributes))
    {
        m_Area.SetDataSet(m_Data.get());
        m_Area.ResizePlots(size.width(), size.height());
        m_Area.AddPlot(0);
    }

    /// The colours at the top, above the line, a little right of where these rows stand.
    QVector<QColor> ColorsAt(const QVector<int>& rows)
    {
        const QImage image = m_Area.grab().toImage();
        const TimeAxis& axis = *m_Area.GetTimeAxis();
        QVector<QColor> colors;
        for (const int row : rows)
            colors.append(image.pixelColor(int(axis.ToX(row)) + 4, 2));
        return colors;
    }

    std::unique_ptr<DataSet> m_Data;
    Area m_Area;
};
