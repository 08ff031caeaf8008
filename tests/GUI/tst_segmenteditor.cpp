#include "cuttablelineplotwidget.h"
#include "dataset.h"
#include "modalscript.h"
#include "mousedrag.h"
#include "overviewtimelinewidget.h"
#include "recording.h"
#include "segmenteditor.h"
#include "testdata.h"
#include "timeaxis.h"
#include <QtTest>

class TestSegmentEditor : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void cut_data();
    void cut();
    void merge();

private:
    // Drags from one row to another; the same row twice is a plain click.
    void drag(int from, int to);
    QString segments() const;

    std::unique_ptr<Recording> m_Recording;
    std::unique_ptr<CuttableLinePlotWidget> m_Plot;
    OverviewTimelineWidget m_Overview;
    std::unique_ptr<SegmentEditor> m_Editor;
};

void TestSegmentEditor::init()
{
    m_Recording =
        std::make_unique<Recording>(MakeDataSet(QByteArray("1\n").repeated(100)).release());
    m_Plot = std::make_unique<CuttableLinePlotWidget>();
    m_Plot->SetDataSet(m_Recording->GetDataSet());
    m_Plot->SetCutCollection(m_Recording->GetCutCollection());
    m_Plot->AddPlot(0);
    m_Plot->ResizePlots(1040, 200);
    m_Editor = std::make_unique<SegmentEditor>(nullptr, m_Plot.get(), &m_Overview);
}

void TestSegmentEditor::drag(int from, int to)
{
    const TimeAxis* axis = m_Plot->GetTimeAxis();
    // Half a row further in, where no rounding reaches the neighbour.
    const auto pixel = [=](int row) {
        return QPoint(int(axis->GetStart().x() + double(axis->ToPixel(row))) + 5, 50);
    };
    DragMouse(*m_Plot, pixel(from), pixel(to));
}

QString TestSegmentEditor::segments() const
{
    QStringList texts;
    for (int i = 0; i < m_Recording->GetCutCollection()->GetSegmentCount(); ++i) {
        const CutSegment* segment = m_Recording->GetCutCollection()->GetSegment(i);
        texts.append(QStringLiteral("%1-%2").arg(segment->GetFrom()).arg(segment->GetTo()));
    }
    return texts.join(QLatin1Char(' '));
}

void TestSegmentEditor::cut_data()
{
    QTest::addColumn<int>("from");
    QTest::addColumn<int>("to");
    QTest::addColumn<QString>("expected");
    QTest::addColumn<int>("errors");
    QTest::newRow("range") << 20 << 60 << "0-20 20-60 60-100" << 0;
    QTest::newRow("right to left is refused silently") << 60 << 20 << "0-100" << 0;
    QTest::newRow("a click selects nothing") << 30 << 30 << "0-100" << 1;
}

void TestSegmentEditor::cut()
{
    QFETCH(int, from);
    QFETCH(int, to);
    drag(from, to);
    m_Editor->Cut(m_Recording.get());
    QTEST(segments(), "expected");
    QTEST(TakeUserErrors().size(), "errors");
    int first = 0;
    int last = 0;
    QVERIFY(!m_Plot->GetSelectedRange(first, last));
}

void TestSegmentEditor::merge()
{
    drag(20, 60);
    m_Editor->Cut(m_Recording.get());
    m_Editor->Merge(m_Recording.get());
    QCOMPARE(TakeUserErrors().size(), 1);
    drag(10, 70);
    m_Editor->Merge(m_Recording.get());
    QCOMPARE(segments(), QStringLiteral("0-100"));
}

QTEST_MAIN(TestSegmentEditor)
#include "tst_segmenteditor.moc"
