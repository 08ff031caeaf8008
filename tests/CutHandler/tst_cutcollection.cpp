#include "patternsdataobject.h"
#include "segmenttext.h"
#include "testdata.h"

#include <QLoggingCategory>
#include <QTest>
#include <functional>

namespace
{

constexpr auto labelled = CutSegment::SEGMENT_LABELED;
constexpr auto plain = CutSegment::SEGMENT_CUT;
constexpr auto result = CutSegment::SEGMENT_RESULT;

using Step = std::function<bool(CutCollection&)>;

} // namespace

Q_DECLARE_METATYPE(Step)

class TestCutCollection : public QObject
{
    Q_OBJECT
private slots:
    void changes_data();
    void changes();
    void finds();
    void insertsHits();
    void mergesLabelsBackAndForth();
    void limitsResizing();
    void logsRefusals();
};

// Each row: segments before, one operation, its result and the segments after.
void TestCutCollection::changes_data()
{
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<Step>("step");
    QTest::addColumn<bool>("isDone");
    QTest::addColumn<QString>("after");
    const auto add = [](const char* name, const char* before, const Step& step, bool isDone,
                        const char* after) {
        QTest::newRow(name) << QByteArray(before) << step << isDone << QString::fromLatin1(after);
    };
    const auto cut = [](int from, int to, CutSegment::SEGMENT_STATE state) -> Step {
        return [=](CutCollection& cuts) { return cuts.InsertCut(from, to, state) != nullptr; };
    };
    add("cut a range", "100", cut(10, 20, plain), true, "(0,10) (10,20) (20,100)");
    add("cut at the front", "100", cut(0, 10, result), true, "(0,0) R(0,10) (10,100)");
    add("cut across a boundary", "10 20 100", cut(15, 25, plain), false, "(0,10) (10,20) (20,100)");
    add("cut backwards", "100", cut(20, 10, plain), false, "(0,100)");

    const auto split = [](int at) -> Step {
        return [=](CutCollection& cuts) { return cuts.InsertCut(at, result) != nullptr; };
    };
    add("split", "100", split(30), true, "(0,30) R(30,100)");

    const auto remove = [](int index) -> Step {
        return [=](CutCollection& cuts) { return cuts.RemoveSegment(cuts.GetSegment(index)); };
    };
    add("remove between plain ones", "10 20 100", remove(1), true, "(0,100)");
    add("remove between labelled ones", "10L 20 100L", remove(1), false,
        "L(0,10) (10,20) L(20,100)");
    add("remove between results", "10R 20 100R", remove(1), false, "R(0,10) (10,20) R(20,100)");
    add("remove the first before a labelled one", "10 100L", remove(0), false, "(0,10) L(10,100)");
    add(
        "remove a stranger", "100",
        [](CutCollection& cuts) {
            CutSegment stranger(0, 10);
            return cuts.RemoveSegment(&stranger);
        },
        false, "(0,100)");

    const auto removeAll = [](CutSegment::SEGMENT_STATE state) -> Step {
        return [=](CutCollection& cuts) { return cuts.RemoveSegments(state), true; };
    };
    add("remove results beside each other", "10 20R 30R 100", removeAll(result), true,
        "(0,10) R(10,20) R(20,30) (30,100)");

    const auto merge = [](int from, int to) -> Step {
        return [=](CutCollection& cuts) { return cuts.MergeCuts(from, to); };
    };
    add("merge leaves a neighbour for the next pass", "10 20 30 40 100", merge(5, 45), true,
        "(0,30) (30,100)");

    const auto move = [](int index, int from, int to) -> Step {
        return [=](CutCollection& cuts) {
            const auto data = std::make_unique<DataSet>();
            for (int i = 0; i < 100; ++i)
                data->AddRow(new DataRow);
            return cuts.MoveSegment(data.get(), cuts.GetSegment(index), from, to), true;
        };
    };
    add("move the first off row 0", "10L 100", move(0, 2, 5), true, "(0,2) L(2,5) (5,100)");
    add("move the last off the end", "50 100", move(1, 60, 90), true, "(0,60) (60,90) (60,100)");
}

void TestCutCollection::changes()
{
    QFETCH(QByteArray, before);
    QFETCH(Step, step);
    CutCollection cuts;
    MakeCuts(cuts, before);
    QTEST(step(cuts), "isDone");
    QTEST(ToText(cuts), "after");
}

void TestCutCollection::finds()
{
    CutCollection cuts;
    QCOMPARE(cuts.InsertCut(5, plain), nullptr);
    QCOMPARE(cuts.InsertCut(0, 9, result)->GetState(), plain);
    CutCollection three;
    MakeCuts(three, "10 20R 100");
    int index = 7;
    QCOMPARE(three.FindSegment(10, index), three.GetSegment(0));
    QCOMPARE(index, 0);
    index = 7;
    QCOMPARE(three.FindSegment(101, index), nullptr);
    QCOMPARE(index, 0);
    QCOMPARE(three.CountSegments(result), 1);
}

void TestCutCollection::insertsHits()
{
    PatternsDataObject pattern;
    for (const int width : {5, 4, 0}) {
        auto* collection = new SignalTemplateCollectionDataObject;
        pattern.AddSignalCollection(collection);
        if (width == 0)
            continue;
        auto* signal = new SignalTemplateDataObject;
        signal->SetSignal(std::vector<double>(size_t(width)).data(), width);
        collection->AddSignal(signal);
    }
    constexpr int length = 30;
    bool rows[4][length] = {};
    rows[0][1] = rows[0][10] = rows[0][20] = true;
    // Across a boundary, at the end, and excluded.
    rows[1][12] = rows[1][29] = rows[1][24] = true;
    // Without a signal, and without a collection.
    rows[2][15] = rows[3][15] = true;
    bool* hits[] = {rows[0], rows[1], rows[2], rows[3]};
    CutCollection cuts;
    MakeCuts(cuts, "30");
    cuts.InsertCuts(hits, 4, length, &pattern, 0, {{20, 24}, {0, 99}});
    QCOMPARE(ToText(cuts), QStringLiteral("(0,0) R(0,3) (3,8) R(8,12) (12,18) R(18,22) (22,27) "
                                          "R(27,30) (30,30)"));
    cuts.InsertCuts(hits, 4, length, nullptr, 0, {});
    QCOMPARE(cuts.GetSegmentCount(), 9);
}

void TestCutCollection::mergesLabelsBackAndForth()
{
    CutCollection cuts;
    MakeCuts(cuts, "10L 12 20L 27R 40L 100");
    const auto merged = [&](int gap) {
        cuts.MergeLabels(gap);
        return ToText(cuts);
    };
    const QString apart = ToText(cuts);
    QCOMPARE(merged(2), apart);
    QCOMPARE(merged(5), QStringLiteral("L(0,11) (10,12) L(11,20) R(20,27) L(27,40) (40,100)"));
    QCOMPARE(merged(8), QStringLiteral("L(0,11) (10,12) L(11,23) R(20,27) L(23,40) (40,100)"));
    QCOMPARE(merged(3), QStringLiteral("L(0,11) (10,12) L(11,20) R(20,27) L(27,40) (40,100)"));
    // A cut shortens a segment but not its stored end, which reaches over the new ones.
    cuts.InsertCut(50, 60, labelled);
    QCOMPARE(merged(0), QString(apart).replace(QStringLiteral("(40,100)"),
                                               QStringLiteral("(40,50) L(50,60) (60,100)")));
}

void TestCutCollection::limitsResizing()
{
    CutCollection cuts;
    MakeCuts(cuts, "10 20 100");
    const auto limits = [](const CutCollection& collection, const CutSegment* segment) {
        return ResizeLimits(collection, segment, 120).value_or(RowSpan{-1, -1});
    };
    QCOMPARE(limits(cuts, cuts.GetSegment(0)), RowSpan({0, 20}));
    QCOMPARE(limits(cuts, cuts.GetSegment(1)), RowSpan({0, 100}));
    QCOMPARE(limits(cuts, cuts.GetSegment(2)), RowSpan({10, 120}));
    CutCollection alone;
    MakeCuts(alone, "10");
    QCOMPARE(limits(cuts, alone.GetSegment(0)), RowSpan({-1, -1}));
    QCOMPARE(limits(alone, alone.GetSegment(0)), RowSpan({-1, -1}));
}

void TestCutCollection::logsRefusals()
{
    QLoggingCategory::setFilterRules(QStringLiteral("skerrymoor.cuts.debug=true"));
    CutCollection cuts;
    MakeCuts(cuts, "10 100");
    for (const char* text :
         {"Insert error - Fix me", "Insert error - Fix me", "Mering labels 3", "Right found"})
        QTest::ignoreMessage(QtDebugMsg, text);
    cuts.InsertCut(5, 15, plain);
    cuts.InsertCutsAt({101}, plain);
    cuts.MergeLabels(3);
    cuts.RemoveSegment(cuts.GetSegment(0));
    QLoggingCategory::setFilterRules(QString());
}

QTEST_GUILESS_MAIN(TestCutCollection)
#include "tst_cutcollection.moc"
