#pragma once

#include "cuttableamplitudeline.h"
#include "testdata.h"
#include "timeaxis.h"
#include "verticalaxis.h"
#include <QImage>
#include <QPainter>
#include <limits>

// A line over a recording, painted into a picture.

inline constexpr int width = 600;
inline constexpr int height = 200;
inline constexpr double missing = std::numeric_limits<double>::quiet_NaN();

using Column = std::vector<double>;
using Axis = std::unique_ptr<TimeAxis>;

template <class Class>
Axis make()
{
    return std::make_unique<Class>();
}
using Maker = Axis (*)();

/// A line over a recording, the axes as wide as `extent` pixels.
struct Scene {
    explicit Scene(const Column& values, double extent, Axis axis = make<TimeAxis>())
        : m_Data(MakeColumn(values)), m_Time(std::move(axis))
    {
        m_Vertical.SetTop({0, 9});
        m_Vertical.SetBottom({0, height - 9});
        m_Vertical.SetMinimum(m_Data->GetMinValue(0));
        m_Vertical.SetMaximum(m_Data->GetMaxValue(0));
        m_Time->SetEnd({extent, 0});
        m_Time->SetNumberOfPoints(m_Data->GetRowCount());
        Connect(m_Line);
    }

    void Connect(AmplitudeLine& line)
    {
        line.SetDataSet(m_Data.get());
        line.SetTimeAxis(m_Time.get());
        line.SetVerticalAxis(&m_Vertical);
    }

    /// The polyline through all rows but the last, as a plain painter draws it.
    void PaintPlain(QPainter& painter) const
    {
        QPolygonF polygon;
        for (int row = 0; row < m_Data->GetRowCount() - 1; ++row) {
            const auto value = float(m_Data->GetRow(row)->GetValue(0));
            polygon.append({double(m_Time->ToPixel(row)),
                            m_Vertical.GetBottom().y() - double(m_Vertical.ToPixel(value))});
        }
        painter.setPen(QPen(Qt::black, 0.5));
        painter.drawPolyline(polygon);
    }

    std::unique_ptr<DataSet> m_Data;
    Axis m_Time;
    VerticalAxis m_Vertical;
    CuttableAmplitudeLine m_Line{0, nullptr};
};

template <typename Painting>
QImage render(double left, double scale, const Painting& paint, int imageWidth = width)
{
    QImage image(QSize(imageWidth, height) * scale, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(scale);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(-left, 0);
    paint(painter);
    return image;
}

inline QImage render(AmplitudeLine& line, double left = 0, double scale = 1, int imageWidth = width)
{
    return render(
        left, scale, [&](QPainter& painter) { line.Paint(painter); }, imageWidth);
}

inline int darkestIn(const QImage& image, const QRect& area)
{
    int darkest = 255;
    for (int y = area.top(); y <= area.bottom(); ++y) {
        for (int x = area.left(); x <= area.right(); ++x)
            darkest = std::min(darkest, qGray(image.pixel(x, y)));
    }
    return darkest;
}
