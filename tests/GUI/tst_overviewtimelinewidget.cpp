#include "cutcollection.h"
#include "labelcollection.h"
#include "overviewtimelinewidget.h"
#include "testdata.h"
#include <QtTest>

class TestOverviewTimelineWidget : public QObject
{
    Q_OBJECT
private slots:
    void showsLabelsAndMarker();
};

void TestOverviewTimelineWidget::showsLabelsAndMarker()
{
    // A hundred rows on a pixel; one label is one row long, the other two hundred.
    const auto data = MakeColumn(std::vector<double>(50000, 0.0));
    CutSegment one(12345, 12346);
    CutSegment many(30000, 30200);
    LabelCollection labels;
    auto* behavior = new BehaviorLabel;
    labels.AddLabel(behavior);
    OverviewTimelineWidget overview;
    overview.resize(500, 10);
    overview.SetDataSet(data.get());
    overview.SetLabelCollection(&labels);
    const auto columnsOf = [&](const QColor& color) {
        const QImage image = overview.grab().toImage();
        QVector<int> columns;
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixelColor(x, 5) == color)
                columns.append(x);
        }
        return columns;
    };
    QCOMPARE(columnsOf(Qt::white).size(), 500);
    for (CutSegment* segment : {&one, &many}) {
        segment->SetColor(Qt::red);
        behavior->AddLabel(new LabelInstance(segment));
    }
    QVERIFY(columnsOf(Qt::red).isEmpty());
    overview.UpdateLabels();
    QCOMPARE(columnsOf(Qt::red), (QVector<int>{123, 300, 301}));
    overview.resize(1000, 10);
    QCOMPARE(columnsOf(Qt::red), (QVector<int>{246, 600, 601, 602, 603}));
    // However little of the recording shows, the marker does.
    overview.SetSelection(700, 700);
    QCOMPARE(columnsOf(Qt::white).size(), 1000 - 5 - 4);
    overview.SetSelection(-1, -1);
    QCOMPARE(columnsOf(Qt::white).size(), 1000 - 5);
}

QTEST_MAIN(TestOverviewTimelineWidget)
#include "tst_overviewtimelinewidget.moc"
