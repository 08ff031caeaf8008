#include "cachedpicture.h"
#include "cuttablelineplot.h"
#include "lineplotlabel.h"
#include "selectionrange.h"
#include "slittedaxis.h"
#include "testdata.h"
#include "verticalaxis.h"
#include <QImage>
#include <QPainter>
#include <QtTest>
#include <cmath>
#include <limits>

namespace
{
/// Twenty rows ten pixels apart; from the tenth on they are shifted.
struct ShiftedAxis : TimeAxis {
    explicit ShiftedAxis(int shift) : m_Shift(shift) { SetNumberOfPoints(20); }
    float ToPixel(int index) const override
    {
        return float(10 * index + (index < 10 ? 0 : m_Shift));
    }
    int OrderedEnd(int first) const override { return first < 10 && m_Shift < 0 ? 10 : 20; }
    const int m_Shift;
};

template <class Painting>
QImage render(const QSize& size, const Painting& paint)
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    paint(painter);
    return image;
}
} // namespace

class TestPlotAxes : public QObject
{
    Q_OBJECT
private slots:
    void timeAxisMapsBothWays();
    void slittedAxis();
    void findsRowsUnderPixels();
    void verticalAxisMapsBothWays();
    void plotLayout();
    void axisTypeKeepsOrLosesPoints();
    void zeroLineAndLabels();
    void selectionRange();
    void cachedPicture();
};

void TestPlotAxes::timeAxisMapsBothWays()
{
    constexpr int most = std::numeric_limits<int>::max();
    // Points, end of the axis, a row and its pixel, a pixel and its row.
    const std::vector<std::tuple<int, double, int, float, float, int>> cases{
        {101, 1040, 100, 1000, 1040, 100},
        {101, 1040, 7, 70, 59.9F, 1},
        {101, 1040, 1, 10, 20, -2},
        {1, 1040, 1, 1000, 1040, 1},
        {0, 1040, 0, 0, 540, 0},
        {101, 40, 5, 0, 41, most},
        {101, 40, 5, 0, 40, 0},
        {2000000001, 600040, 2000000000, 600000, 600040, 2000000000}};
    for (const auto& [points, end, row, pixel, x, rowThere] : cases) {
        TimeAxis axis;
        axis.SetStart({40, 0});
        axis.SetEnd({end, 0});
        axis.SetNumberOfPoints(points);
        QCOMPARE(axis.ToPixel(row), pixel);
        QCOMPARE(axis.ToIndex(x), rowThere);
    }
}

void TestPlotAxes::slittedAxis()
{
    SlittedAxis axis;
    axis.SetStart({10, 0});
    axis.SetEnd({410, 0});
    axis.SetNumberOfPoints(101);
    QCOMPARE(axis.ToPixel(0), 0.0F);
    QCOMPARE(axis.ToPixel(25), 50.0F);
    QCOMPARE(axis.ToPixel(50), 200.0F);
    QCOMPARE(axis.ToPixel(100), 400.0F);
    QCOMPARE(axis.ToIndex(110), 25);
    axis.SetNumberOfPoints(1);
    QCOMPARE(axis.ToPixel(0), 200.0F);
}

void TestPlotAxes::findsRowsUnderPixels()
{
    // The shift, both pixels, and the rows with two neighbours on either side.
    const std::vector<std::tuple<int, double, double, RowSpan>> cases{
        {0, 45, 72, {3, 10}},
        {0, -5, 500, {0, 20}},
        // Between two rows, and out of sight.
        {0, 51, 58, {4, 8}},
        {0, -50, -20, {0, 0}},
        // In a gap.
        {500, 200, 300, {8, 12}},
        // Where rows turn back the line passes through all that lies between.
        {-1000, 45, 52, {3, 12}},
        {-1000, -500, -400, {8, 12}},
        {-1000, -855, -848, {8, 18}},
        {-1000, -920, -905, {0, 0}},
        {-55, 52, 58, {4, 14}}};
    for (const auto& [shift, left, right, rows] : cases) {
        const ShiftedAxis axis(shift);
        QCOMPARE(axis.RowsUnder(left, right, axis.GetRows()), rows);
    }
}

void TestPlotAxes::verticalAxisMapsBothWays()
{
    VerticalAxis axis;
    axis.SetTop({100, 10});
    axis.SetBottom({100, 110});
    // Minimum, maximum, a value and its pixel.
    const std::vector<std::tuple<double, double, float, float>> cases{
        {-2, 2, -2, 0}, {-2, 2, 1, 75}, {3, 3, 3, 0}, {-4, 1.1754944e-38, -1, 75}};
    for (const auto& [low, high, value, pixel] : cases) {
        axis.SetMinimum(low);
        axis.SetMaximum(high);
        QCOMPARE(axis.ToPixel(value), pixel);
        QCOMPARE(axis.ToValue(110 - pixel), value);
    }
    // Ticks at both ends; limits of any kind leave the painter alive.
    const auto paint = [&](QPainter& painter) { axis.Paint(painter); };
    QCOMPARE(render({200, 120}, paint).pixelColor(96, 110), QColor(Qt::black));
    for (const double limit : {-1.0 / 0.0, std::nan("")}) {
        axis.SetMinimum(limit);
        render({200, 120}, paint);
        QVERIFY(!std::isnan(axis.ToPixel(0)));
    }
}

void TestPlotAxes::plotLayout()
{
    const auto data = MakeDataSet("1 -5\n4 -2\n2 -3\n");
    LinePlot plot(1);
    const VerticalAxis& vertical = *plot.GetVerticalAxis();
    plot.SetDataSet(data.get());
    plot.SetSize(200, 1000);
    QCOMPARE(vertical.GetTop(), QPointF(40, 9));
    QCOMPARE(vertical.GetBottom(), QPointF(40, 191));
    QCOMPARE(plot.GetTimeAxis()->GetStart(), QPointF(40, 191));
    QCOMPARE(plot.GetTimeAxis()->GetEnd(), QPointF(1040, 191));
    plot.SetLeftMargin(10);
    plot.SetRightMargin(30);
    QCOMPARE(plot.GetTimeAxis()->GetEnd(), QPointF(975, 191));
    QCOMPARE(vertical.GetTitle(), QStringLiteral("B"));
    QCOMPARE(vertical.GetMinimum(), -5.0F);
    QCOMPARE(vertical.GetMaximum(), DataSet::GetInitialMax());
    data->SetAxisRanges({{1, {-10.0, 10.0}}});
    plot.ResetAxis();
    QCOMPARE(vertical.GetMaximum(), 10.0F);
    plot.SetAttribute(0);
    QCOMPARE(vertical.GetMaximum(), 4.0F);

    double values[] = {-20, 4.5, std::nan(""), 5};
    LinePlot array;
    array.SetData(values, 4, QStringLiteral("signal"));
    QCOMPARE(array.GetVerticalAxis()->GetMaximum(), 6.0F);
    QCOMPARE(array.GetVerticalAxis()->GetMinimum(), -22.0F);
    QCOMPARE(array.GetVerticalAxis()->GetTitle(), QStringLiteral("signal"));
    QCOMPARE(array.GetTimeAxis()->GetLastIndex(), 3);
}

void TestPlotAxes::axisTypeKeepsOrLosesPoints()
{
    const auto data = MakeDataSet("1\n2\n3\n4\n");
    LinePlot plot(0);
    plot.SetDataSet(data.get());
    plot.SetSize(100, 300);
    plot.SetSlitted(1);
    // The second of four rows, a ninth of the way to the middle instead of a third of all.
    QCOMPARE(plot.GetTimeAxis()->ToPixel(1), 300.0F * 2 / 9);
    QCOMPARE(plot.GetTimeAxis()->GetLastIndex(), 3);
    QCOMPARE(plot.GetTimeAxis()->GetEnd(), QPointF(340, 91));
    plot.ChangeAxisType(0);
    QCOMPARE(plot.GetTimeAxis()->GetLastIndex(), 2);
    QCOMPARE(plot.GetTimeAxis()->ToPixel(1), 150.0F);
}

void TestPlotAxes::zeroLineAndLabels()
{
    const auto data = MakeDataSet("-1\n1\n-1\n1\n-1\n1\n-1\n1\n-1\n1\n1\n");
    const auto paint = [](LinePlot& plot) {
        plot.SetSize(100, 300);
        return render({360, 100}, [&](QPainter& painter) { plot.Paint(painter, false); });
    };
    CuttableLinePlot cuttable(0, nullptr);
    cuttable.SetDataSet(data.get());
    // Right of the last drawn row only the line at 0 crosses the middle.
    QCOMPARE(paint(cuttable).pixelColor(330, 50), QColor(Qt::white));
    data->SetZeroLines({{0, true}});
    QVERIFY(paint(cuttable).pixelColor(330, 50) != QColor(Qt::white));

    StudyLabelInstance label(QStringLiteral("dive"), Qt::red);
    label.AddSpan(2, 4);
    label.AddSpan(9, 30);
    QList<StudyLabelInstance*> labels{&label};
    LinePlotLabel labelled(0);
    labelled.SetDataSet(data.get());
    labelled.SetLabelCollection(&labels);
    const auto labelColumns = [&] {
        const QImage image = paint(labelled);
        QVector<int> ends;
        for (int x = 1; x < image.width(); ++x) {
            if (image.pixel(x, 2) != image.pixel(x - 1, 2))
                ends.append(x);
        }
        return ends;
    };
    // Thirty pixels a row; each label leaves out its last pixel, and none reaches beyond the axis.
    QCOMPARE(labelColumns(), (QVector<int>{100, 159, 310, 339}));
    labelled.SetRange(5, 15);
    QCOMPARE(labelColumns(), (QVector<int>{173, 339}));
}

void TestPlotAxes::selectionRange()
{
    SelectionRange range;
    range.SetEnd(50);
    QVERIFY(!range.IsValid());
    range.Begin(10, 40);
    QCOMPARE(range.m_Start, 40.0);
    range.SetEnd(60);
    QVERIFY(range.IsValid());
    const QImage image = render({100, 20}, [&](QPainter& painter) { range.Paint(painter, 20); });
    QCOMPARE(image.pixelColor(45, 5), QColor(Qt::yellow));
    QCOMPARE(image.pixelColor(40, 5), QColor(Qt::black));
    range.Clear();
    QVERIFY(!range.IsValid());
}

void TestPlotAxes::cachedPicture()
{
    CachedPicture picture(Qt::green);
    int painted = 0;
    const auto content = [&](QPainter& painter) {
        painter.fillRect(0, 0, 50, 10, Qt::red);
        ++painted;
    };
    const auto show = [&](const QSize& size, qreal ratio) {
        return render({200, 20}, [&](QPainter& painter) {
            picture.Paint(painter, {3, 0}, size, ratio, content);
        });
    };
    QVERIFY(picture.GetValidPart().isEmpty());
    const QImage once = show({100, 10}, 1.5);
    QCOMPARE(once.pixelColor(2, 9), QColor(Qt::white));
    QCOMPARE(once.pixelColor(52, 9), QColor(Qt::red));
    QCOMPARE(once.pixelColor(53, 9), QColor(Qt::green));
    QCOMPARE(picture.GetValidPart(), QRect(0, 0, 100, 10));
    QCOMPARE(show({100, 10}, 1.5), once);
    QCOMPARE(painted, 1);
    show({100, 12}, 1.5);
    show({100, 12}, 2);
    picture.Invalidate();
    QVERIFY(picture.GetValidPart().isEmpty());
    show({100, 12}, 2);
    // A widget without a size has no picture.
    show({0, 12}, 2);
    QCOMPARE(painted, 4);
}

QTEST_MAIN(TestPlotAxes)
#include "tst_plotaxes.moc"
