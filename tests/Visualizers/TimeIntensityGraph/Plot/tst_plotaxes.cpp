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

Q_DECLARE_METATYPE(RowSpan)

class TestPlotAxes : public QObject
{
    Q_OBJECT
private slots:
    void timeAxisMapsBothWays_data();
    void timeAxisMapsBothWays();
    void slittedAxis();
    void findsRowsUnderPixels_data();
    void findsRowsUnderPixels();
    void verticalAxisMapsBothWays_data();
    void verticalAxisMapsBothWays();
    void plotLayout();
    void arrayLimits();
    void axisTypeKeepsOrLosesPoints();
    void zeroLineAndLabels();
    void selectionRange();
    void cachedPicture();
};

void TestPlotAxes::timeAxisMapsBothWays_data()
{
    QTest::addColumn<int>("points");
    QTest::addColumn<double>("end");
    QTest::addColumn<int>("index");
    QTest::addColumn<float>("pixel");
    QTest::addColumn<float>("x");
    QTest::addColumn<int>("back");
    QTest::newRow("first") << 101 << 1040.0 << 0 << 0.0F << 40.0F << 0;
    QTest::newRow("last") << 101 << 1040.0 << 100 << 1000.0F << 1040.0F << 100;
    QTest::newRow("truncated") << 101 << 1040.0 << 7 << 70.0F << 59.9F << 1;
    QTest::newRow("left of the start") << 101 << 1040.0 << 1 << 10.0F << 20.0F << -2;
    QTest::newRow("one row") << 1 << 1040.0 << 1 << 1000.0F << 1040.0F << 1;
    QTest::newRow("no rows") << 0 << 1040.0 << 0 << 0.0F << 540.0F << 0;
    QTest::newRow("no width, right")
        << 101 << 40.0 << 5 << 0.0F << 41.0F << std::numeric_limits<int>::max();
    QTest::newRow("no width, at it") << 101 << 40.0 << 5 << 0.0F << 40.0F << 0;
    QTest::newRow("many rows") << 2000000001 << 600040.0 << 2000000000 << 600000.0F << 600040.0F
                               << 2000000000;
}

void TestPlotAxes::timeAxisMapsBothWays()
{
    QFETCH(int, points);
    QFETCH(double, end);
    TimeAxis axis;
    axis.SetStart({40, 0});
    axis.SetEnd({end, 0});
    axis.SetNumberOfPoints(points);
    QFETCH(int, index);
    QTEST(axis.ToPixel(index), "pixel");
    QFETCH(float, x);
    QTEST(axis.ToIndex(x), "back");
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

void TestPlotAxes::findsRowsUnderPixels_data()
{
    QTest::addColumn<int>("shift");
    QTest::addColumn<double>("left");
    QTest::addColumn<double>("right");
    QTest::addColumn<RowSpan>("rows");
    // Twenty rows stand ten pixels apart; from the tenth on they are shifted.
    QTest::newRow("inside") << 0 << 45.0 << 72.0 << RowSpan{3, 10};
    QTest::newRow("everything") << 0 << -5.0 << 500.0 << RowSpan{0, 20};
    QTest::newRow("between two rows") << 0 << 51.0 << 58.0 << RowSpan{4, 8};
    QTest::newRow("out of sight") << 0 << -50.0 << -20.0 << RowSpan{0, 0};
    QTest::newRow("a gap") << 500 << 200.0 << 300.0 << RowSpan{8, 12};
    // The line goes back through all that lies between.
    QTest::newRow("before the turn") << -1000 << 45.0 << 52.0 << RowSpan{3, 12};
    QTest::newRow("across the turn") << -1000 << -500.0 << -400.0 << RowSpan{8, 12};
    QTest::newRow("behind the turn") << -1000 << -855.0 << -848.0 << RowSpan{8, 18};
    QTest::newRow("left of the turn") << -1000 << -920.0 << -905.0 << RowSpan{0, 0};
    QTest::newRow("on both sides") << -55 << 52.0 << 58.0 << RowSpan{4, 14};
}

void TestPlotAxes::findsRowsUnderPixels()
{
    struct ShiftedAxis : TimeAxis {
        float ToPixel(int index) const override
        {
            return float(10 * index + (index < 10 ? 0 : m_Shift));
        }
        int OrderedEnd(int first) const override { return first < 10 && m_Shift < 0 ? 10 : 20; }
        int m_Shift = 0;
    };
    ShiftedAxis axis;
    QFETCH(int, shift);
    QFETCH(double, left);
    QFETCH(double, right);
    axis.m_Shift = shift;
    axis.SetNumberOfPoints(20);
    QTEST(axis.RowsUnder(left, right, axis.GetRows()), "rows");
}

void TestPlotAxes::verticalAxisMapsBothWays_data()
{
    QTest::addColumn<double>("low");
    QTest::addColumn<double>("high");
    QTest::addColumn<float>("value");
    QTest::addColumn<float>("pixel");
    QTest::newRow("bottom") << -2.0 << 2.0 << -2.0F << 0.0F;
    QTest::newRow("top") << -2.0 << 2.0 << 2.0F << 100.0F;
    QTest::newRow("between") << -2.0 << 2.0 << 1.0F << 75.0F;
    QTest::newRow("flat") << 3.0 << 3.0 << 3.0F << 0.0F;
    QTest::newRow("negative only") << -4.0 << 1.1754944e-38 << -1.0F << 75.0F;
}

void TestPlotAxes::verticalAxisMapsBothWays()
{
    QFETCH(float, value);
    QFETCH(float, pixel);
    QFETCH(double, low);
    QFETCH(double, high);
    VerticalAxis axis;
    axis.SetTop({0, 10});
    axis.SetBottom({0, 110});
    axis.SetMinimum(low);
    axis.SetMaximum(high);
    QCOMPARE(axis.ToPixel(value), pixel);
    QCOMPARE(axis.ToValue(110 - pixel), value);
    // Limits of any kind leave the painter alive.
    for (const double limit : {low, -1.0 / 0.0, std::nan("")}) {
        axis.SetMinimum(limit);
        QImage image(200, 120, QImage::Format_RGB32);
        QPainter painter(&image);
        axis.Paint(painter);
        QVERIFY(!std::isnan(axis.ToPixel(0)));
    }
}

void TestPlotAxes::plotLayout()
{
    const auto data = MakeDataSet("1 -5\n4 -2\n2 -3\n");
    LinePlot plot(1);
    plot.SetDataSet(data.get());
    plot.SetSize(200, 1000);
    QCOMPARE(plot.GetVerticalAxis()->GetTop(), QPointF(40, 9));
    QCOMPARE(plot.GetVerticalAxis()->GetBottom(), QPointF(40, 191));
    QCOMPARE(plot.GetTimeAxis()->GetStart(), QPointF(40, 191));
    QCOMPARE(plot.GetTimeAxis()->GetEnd(), QPointF(1040, 191));
    plot.SetLeftMargin(10);
    plot.SetRightMargin(30);
    QCOMPARE(plot.GetTimeAxis()->GetEnd(), QPointF(975, 191));
    QCOMPARE(plot.GetVerticalAxis()->GetTitle(), QStringLiteral("B"));
    QCOMPARE(plot.GetVerticalAxis()->GetMinimum(), -5.0F);
    QCOMPARE(plot.GetVerticalAxis()->GetMaximum(), DataSet::GetInitialMax());
    data->SetAxisRanges({{1, {-10.0, 10.0}}});
    plot.ResetAxis();
    QCOMPARE(plot.GetVerticalAxis()->GetMaximum(), 10.0F);
    plot.SetAttribute(0);
    QCOMPARE(plot.GetVerticalAxis()->GetMaximum(), 4.0F);
}

void TestPlotAxes::arrayLimits()
{
    double values[] = {-20, 4.5, std::nan(""), 5};
    LinePlot plot;
    plot.SetData(values, 4, QStringLiteral("signal"));
    QCOMPARE(plot.GetVerticalAxis()->GetMaximum(), 6.0F);
    QCOMPARE(plot.GetVerticalAxis()->GetMinimum(), -22.0F);
    QCOMPARE(plot.GetVerticalAxis()->GetTitle(), QStringLiteral("signal"));
    QCOMPARE(plot.GetTimeAxis()->GetLastIndex(), 3);
}

void TestPlotAxes::axisTypeKeepsOrLosesPoints()
{
    const auto data = MakeDataSet("1\n2\n3\n4\n");
    LinePlot plot(0);
    plot.SetDataSet(data.get());
    plot.SetSize(100, 300);
    plot.SetSlitted(1);
    QVERIFY(dynamic_cast<SlittedAxis*>(plot.GetTimeAxis()));
    QCOMPARE(plot.GetTimeAxis()->GetLastIndex(), 3);
    QCOMPARE(plot.GetTimeAxis()->GetEnd(), QPointF(340, 91));
    plot.ChangeAxisType(0);
    QVERIFY(!dynamic_cast<SlittedAxis*>(plot.GetTimeAxis()));
    QCOMPARE(plot.GetTimeAxis()->GetLastIndex(), 2);
}

void TestPlotAxes::zeroLineAndLabels()
{
    const auto data = MakeDataSet("-1\n1\n-1\n1\n-1\n1\n-1\n1\n-1\n1\n1\n");
    const auto render = [](LinePlot& plot) {
        plot.SetSize(100, 300);
        QImage image(360, 100, QImage::Format_RGB32);
        image.fill(Qt::white);
        QPainter painter(&image);
        plot.Paint(painter, false);
        return image;
    };
    CuttableLinePlot cuttable(0, nullptr);
    cuttable.SetDataSet(data.get());
    // Right of the last drawn row only the line at 0 crosses the middle.
    QCOMPARE(render(cuttable).pixelColor(330, 50), QColor(Qt::white));
    data->SetZeroLines({{0, true}});
    QVERIFY(render(cuttable).pixelColor(330, 50) != QColor(Qt::white));

    StudyLabelInstance label(QStringLiteral("dive"), Qt::red);
    label.AddSpan(2, 4);
    label.AddSpan(9, 30);
    QList<StudyLabelInstance*> labels{&label};
    LinePlotLabel labelled(0);
    labelled.SetDataSet(data.get());
    labelled.SetLabelCollection(&labels);
    const QImage image = render(labelled);
    const QColor faintRed(255, 204, 204);
    QCOMPARE(image.pixelColor(110, 2), faintRed);
    QCOMPARE(image.pixelColor(80, 2), QColor(Qt::white));
    QCOMPARE(image.pixelColor(200, 2), QColor(Qt::white));
    QCOMPARE(image.pixelColor(330, 2), faintRed);
    QCOMPARE(image.pixelColor(342, 2), QColor(Qt::white));
    labelled.SetRange(5, 10);
    QCOMPARE(render(labelled).pixelColor(60, 2), QColor(Qt::white));
}

void TestPlotAxes::selectionRange()
{
    SelectionRange range;
    range.SetEnd(50);
    QVERIFY(!range.IsValid());
    range.Begin(10, 40);
    QCOMPARE(range.m_Start, 40.0);
    QVERIFY(!range.IsValid());
    const auto paints = [&] {
        QImage image(100, 20, QImage::Format_RGB32);
        image.fill(Qt::white);
        QPainter painter(&image);
        range.Paint(painter, 20);
        return image.pixelColor(45, 5) == QColor(Qt::yellow) &&
               image.pixelColor(40, 5) == QColor(Qt::black);
    };
    range.SetEnd(60);
    QVERIFY(range.IsValid() && paints());
    range.SetEnd(20);
    QVERIFY(range.IsValid() && !paints());
    QCOMPARE(range.GetSelectionStart(), 20.0);
    QCOMPARE(range.GetSelectionEnd(), 40.0);
    range.Clear();
    QVERIFY(!range.IsValid());
}

void TestPlotAxes::cachedPicture()
{
    CachedPicture picture(Qt::green);
    int painted = 0;
    const auto show = [&](const QSize& size, qreal ratio) {
        QImage image(200, 20, QImage::Format_RGB32);
        image.fill(Qt::white);
        QPainter painter(&image);
        picture.Paint(painter, {3, 0}, size, ratio, [&](QPainter& content) {
            content.fillRect(0, 0, 50, 10, Qt::red);
            ++painted;
        });
        return image;
    };
    QVERIFY(picture.GetValidPart().isEmpty());
    const QImage once = show({100, 10}, 1.5);
    QCOMPARE(once.pixelColor(52, 9), QColor(Qt::red));
    QCOMPARE(once.pixelColor(53, 9), QColor(Qt::green));
    QCOMPARE(once.pixelColor(2, 9), QColor(Qt::white));
    QCOMPARE(picture.GetValidPart(), QRect(0, 0, 100, 10));
    QCOMPARE(show({100, 10}, 1.5), once);
    QCOMPARE(painted, 1);
    show({100, 12}, 1.5);
    show({100, 12}, 2);
    QCOMPARE(painted, 3);
    picture.Invalidate();
    QVERIFY(picture.GetValidPart().isEmpty());
    show({100, 12}, 2);
    QCOMPARE(painted, 4);
    // A widget without a size has no picture.
    show({0, 12}, 2);
    QCOMPARE(painted, 4);
}

QTEST_MAIN(TestPlotAxes)
#include "tst_plotaxes.moc"
