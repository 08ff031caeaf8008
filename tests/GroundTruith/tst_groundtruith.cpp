#include "cuttablelineplotwidget.h"
#include "fieldlookup.h"
#include "groundtruithbehaviorcollection.h"
#include "groundtruithcomparisionwidget.h"
#include "groundtruithwidget.h"
#include "grouppalette.h"
#include "lineplot.h"
#include "testdata.h"
#include "zoomwidget.h"
#include <QComboBox>
#include <QPainter>
#include <QScrollArea>
#include <QScrollBar>
#include <QtTest>

namespace
{

// The colour that labels of a palette entry have on white.
QColor onWhite(int entry)
{
    QImage image(1, 1, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.setOpacity(0.4);
    painter.fillRect(image.rect(), GroupColor(entry));
    return image.pixelColor(0, 0);
}

QColor pixelAt(QWidget& widget, int x, int y)
{
    QImage image(1, 1, QImage::Format_ARGB32_Premultiplied);
    widget.render(&image, QPoint(), QRect(x, y, 1, 1));
    return image.pixelColor(0, 0);
}

} // namespace

class TestGroundTruith : public QObject
{
    Q_OBJECT
private slots:
    void labels();
    void tiles();
    void compares();
};

void TestGroundTruith::labels()
{
    // Names, the rows of the last one, a pixel, and the palette entry there; -1 where it is white.
    // Rows of a widget 1005 pixels wide stand ten pixels apart, from 40 on.
    const std::vector<std::tuple<int, int, int, int, int>> cases{{1, 10, 20, 140, 0},
                                                                 {1, 10, 20, 139, -1},
                                                                 {1, 10, 20, 239, 0},
                                                                 {1, 10, 20, 240, -1},
                                                                 // No end row, and no length.
                                                                 {1, 10, -1, 35, 0},
                                                                 {1, 10, 10, 140, 0},
                                                                 {3, 10, 20, 200, 2},
                                                                 {17, 10, 20, 200, 0}};
    const auto data = MakeColumn(std::vector<double>(101, 1.0));
    for (const auto& [names, from, to, pixel, entry] : cases) {
        GroundTruithBehaviorCollection behaviors;
        for (int i = 1; i < names; ++i)
            behaviors.Add(QString::number(i), new GroundTruithInstance(90, 91));
        behaviors.Add(QStringLiteral("dive"), new GroundTruithInstance(from, to));
        GroundTruithWidget widget;
        widget.resize(1005, 300);
        widget.SetDataSet(data.get());
        widget.SetBehaviorCollection(&behaviors);
        // Above the axis nothing else is painted.
        QCOMPARE(pixelAt(widget, pixel, 2), entry == -1 ? QColor(Qt::white) : onWhite(entry));
    }
}

void TestGroundTruith::tiles()
{
    GroundTruithWidget widget;
    for (const auto& [width, count] : {std::pair(10000, 1), {10001, 2}, {200000, 20}}) {
        widget.resize(width, 60);
        pixelAt(widget, 0, 0);
        QCOMPARE(widget.GetTileCount(), count);
    }
    // The joint of two tiles, in an order in which the first ones are dropped and come back.
    const auto data = MakeColumn(std::vector<double>(200001, 1.0));
    GroundTruithBehaviorCollection behaviors;
    behaviors.Add(QStringLiteral("dive"), new GroundTruithInstance(9900, 10100));
    widget.SetDataSet(data.get());
    widget.SetBehaviorCollection(&behaviors);
    for (const int x : {9999, 150000, 10000, 199999, 9999}) {
        const bool isLabelled = x < 11000;
        QCOMPARE(pixelAt(widget, x, 2), isLabelled ? onWhite(0) : QColor(Qt::white));
    }
}

void TestGroundTruith::compares()
{
    const auto data = MakeDataSet("0 5\n1 6\n2 7\n3 8", {});
    GroundTruithComparisionWidget window;
    window.SetDataSet(data.get());
    window.resize(800, 600);
    window.show();
    auto* truth = window.findChild<GroundTruithWidget*>();
    auto* plot = window.findChild<CuttableLinePlotWidget*>();
    auto* scroll = window.findChild<QScrollArea*>();
    const auto checkSizes = [&](int zoom) {
        QApplication::processEvents();
        const QSize view(zoom * (scroll->width() - 5), int(scroll->height() * 0.5 - 20));
        QCOMPARE(truth->size(), view);
        QCOMPARE(plot->size(), view);
        QCOMPARE(scroll->widget()->size(), QSize(view.width(), scroll->height() - 20));
        QVERIFY(truth->geometry().bottom() < plot->y());
    };
    checkSizes(1);
    window.findChild<ZoomWidget*>()->setValue(200);
    checkSizes(200);
    // The far end of the graph below is painted, too.
    scroll->horizontalScrollBar()->setValue(scroll->horizontalScrollBar()->maximum());
    QApplication::processEvents();
    QVERIFY(plot->GetTile(plot->GetTileCount() - 1));

    auto* attributes = FindField<QComboBox>(&window, QStringLiteral("Data Attributes: "));
    QCOMPARE(plot->GetPlot(0)->GetAttribute(), 0);
    QTest::keyClick(attributes, Qt::Key_Down);
    QCOMPARE(plot->GetPlotCount(), 1);
    QCOMPARE(plot->GetPlot(0)->GetAttribute(), 1);
}

QTEST_MAIN(TestGroundTruith)
#include "tst_groundtruith.moc"
