#include "cutcollection.h"
#include "cuttableamplitudeline.h"
#include "cuttablelineplotwidget.h"
#include "dataset.h"
#include "slittedaxis.h"
#include "verticalaxis.h"

#include <QImage>
#include <QPainter>
#include <benchmark/benchmark.h>
#include <cmath>
#include <memory>

namespace
{
constexpr int tileWidth = 1200;
constexpr int tileHeight = 400;

/// A recording whose first attribute swings slowly, with noise.
const DataSet& recording(int rows)
{
    static std::unique_ptr<DataSet> data;
    if (data && data->GetRowCount() == rows)
        return *data;
    data.reset();
    DataColumn values(rows);
    quint32 random = 1;
    for (int i = 0; i < rows; ++i) {
        random = random * 1664525U + 1013904223U;
        values[i] = std::sin(i * 1e-4) + double(random >> 8) / (1U << 24);
    }
    data = std::make_unique<DataSet>();
    data->AddColumn(QStringLiteral("swing"), ATTRIBUTE_OTHER, std::move(values));
    data->ComputeRanges();
    return *data;
}

/// Paints tiles as the plot area does: the line over a recording that is some tiles wide, seen
/// from a place in it.
class TilePainter
{
public:
    TilePainter(AmplitudeLine& line, const DataSet& data, double screens,
                std::unique_ptr<TimeAxis> axis = std::make_unique<TimeAxis>())
        : m_Line(line), m_Time(std::move(axis)),
          m_Image(tileWidth, tileHeight, QImage::Format_ARGB32_Premultiplied),
          m_Width(screens * tileWidth)
    {
        m_Vertical.SetTop({0, 9});
        m_Vertical.SetBottom({0, tileHeight - 9});
        m_Vertical.SetMinimum(data.GetMinValue(0));
        m_Vertical.SetMaximum(data.GetMaxValue(0));
        m_Time->SetEnd({m_Width, 0});
        m_Time->SetNumberOfPoints(data.GetRowCount());
        line.SetDataSet(const_cast<DataSet*>(&data));
        line.SetTimeAxis(m_Time.get());
        line.SetVerticalAxis(&m_Vertical);
    }

    /// place: 0 at the start of the recording, 1 at its end.
    void Paint(double place)
    {
        m_Image.fill(Qt::white);
        QPainter painter(&m_Image);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.translate(-(m_Width - tileWidth) * place, 0);
        m_Line.Paint(painter);
    }

private:
    AmplitudeLine& m_Line;
    std::unique_ptr<TimeAxis> m_Time;
    QImage m_Image;
    VerticalAxis m_Vertical;
    double m_Width;
};

std::unique_ptr<AmplitudeLine> makeLine(bool cuttable)
{
    if (cuttable)
        return std::make_unique<CuttableAmplitudeLine>(0, nullptr);
    return std::make_unique<AmplitudeLine>(0);
}

void BM_FirstTile(benchmark::State& state)
{
    auto& data = const_cast<DataSet&>(recording(int(state.range(0))));
    const auto line = makeLine(state.range(1));
    TilePainter tile(*line, data, 1);
    for (auto unused : state) {
        // What is known about the column is worth nothing once a value has changed.
        state.PauseTiming();
        data.GetRow(0)->SetValue(0, data.GetValue(0, 0));
        data.ComputeRanges();
        state.ResumeTiming();
        tile.Paint(0);
    }
}

void BM_LaterTile(benchmark::State& state)
{
    const DataSet& data = recording(int(state.range(0)));
    const auto line = makeLine(state.range(1));
    TilePainter tile(*line, data, double(state.range(2)));
    const double place = double(state.range(3)) / 100;
    tile.Paint(place);
    for (auto unused : state)
        tile.Paint(place);
}

/// Rows that are not equally wide: packed at the ends of the axis and spread in its middle.
void BM_SlittedTile(benchmark::State& state)
{
    const DataSet& data = recording(int(state.range(0)));
    const auto line = makeLine(state.range(1));
    TilePainter tile(*line, data, double(state.range(2)), std::make_unique<SlittedAxis>());
    const double place = double(state.range(3)) / 100;
    tile.Paint(place);
    for (auto unused : state)
        tile.Paint(place);
}

/// The paint event of the main graph with its tiles ready: the user moves the mouse.
void BM_PaintGraph(benchmark::State& state)
{
    const int count = int(state.range(0));
    const int visible = int(state.range(1));
    auto& data = const_cast<DataSet&>(recording(1'000'000));
    CutCollection cuts;
    cuts.InsertCut(0, data.GetRowCount(), CutSegment::SEGMENT_CUT);
    for (int i = 1; i < count; ++i)
        cuts.InsertCut(i * (data.GetRowCount() / count), CutSegment::SEGMENT_STATE(i % 3));
    CuttableLinePlotWidget graph;
    const QSize size(tileWidth * (count / visible), 600);
    graph.resize(size);
    graph.SetDataSet(&data);
    graph.SetCutCollection(&cuts);
    graph.AddPlot(0);
    const int left = (size.width() - tileWidth) / 2;
    graph.SetVisibleRange(left, left + tileWidth);
    graph.ShowLabeledData(!state.range(2));
    QImage image(tileWidth, size.height(), QImage::Format_ARGB32_Premultiplied);
    for (auto unused : state)
        graph.render(&image, QPoint(), QRect(left, 0, tileWidth, size.height()));
}
} // namespace

BENCHMARK(BM_FirstTile)
    ->ArgNames({"rows", "cuttable"})
    ->ArgsProduct({{1'000'000, 10'000'000}, {0, 1}})
    ->Unit(benchmark::kMillisecond);
BENCHMARK(BM_LaterTile)
    ->ArgNames({"rows", "cuttable", "screens", "place"})
    ->ArgsProduct({{10'000'000}, {0, 1}, {1, 2, 10, 40, 100, 500}, {0, 100}})
    ->Unit(benchmark::kMillisecond);
BENCHMARK(BM_SlittedTile)
    ->ArgNames({"rows", "cuttable", "screens", "place"})
    ->ArgsProduct({{1'000'000}, {0, 1}, {1, 10, 100}, {0, 50}})
    ->Unit(benchmark::kMillisecond);
BENCHMARK(BM_PaintGraph)
    ->ArgNames({"segments", "visible", "collapsed"})
    ->ArgsProduct({{100'000}, {100'000, 10'000, 1000}, {0, 1}})
    ->Unit(benchmark::kMillisecond);
