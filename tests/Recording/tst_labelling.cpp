#include "labelling.h"
#include "segmenttext.h"
#include <QSignalSpy>
#include <QTest>
#include <map>
#include <random>
#include <set>

namespace
{

using Records = std::map<CutSegment*, SegmentRecord>;

bool isSame(const SegmentRecord& a, const SegmentRecord& b)
{
    return a.m_Ends == b.m_Ends && a.m_IsListed == b.m_IsListed && a.m_State == b.m_State &&
           a.m_Color == b.m_Color && a.m_Behavior == b.m_Behavior;
}

} // namespace

class TestLabelling : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void keepsTheRuleAndTellsAll();
    void tellsBehaviors();
    void refuses();
    void rejects_data();
    void rejects();
    void imports();

private:
    // Everything about all segments there are or ever were, read from the collections alone.
    Records readAll();
    void checkRule(const Records& records) const;
    void checkTold(const LabelChange& change, const Records& before, const Records& after) const;
    LabelChange doAnything(std::mt19937& random);
    CutSegment* segment(int index) const { return m_Cuts->GetSegment(index); }
    BehaviorLabel* behavior(int index) const { return m_Labels->GetLabel(index); }

    std::unique_ptr<CutCollection> m_Cuts;
    std::unique_ptr<LabelCollection> m_Labels;
    std::set<CutSegment*> m_Known;
};

void TestLabelling::init()
{
    m_Cuts = std::make_unique<CutCollection>();
    m_Labels = std::make_unique<LabelCollection>();
    m_Known.clear();
}

Records TestLabelling::readAll()
{
    for (int i = 0; i < m_Cuts->GetSegmentCount(); ++i)
        m_Known.insert(segment(i));
    Records records;
    for (CutSegment* known : m_Known) {
        SegmentRecord& record = records[known];
        record.m_Ends = known->GetEnds();
        record.m_IsListed = m_Cuts->IndexOf(known) != -1;
        record.m_State = known->GetState();
        record.m_Color = known->GetColor();
        for (int i = 0; i < m_Labels->GetLabelCount(); ++i) {
            if (behavior(i)->Contains(known))
                record.m_Behavior = behavior(i);
        }
    }
    return records;
}

void TestLabelling::checkRule(const Records& records) const
{
    for (const auto& [known, record] : records) {
        int instances = 0;
        for (int i = 0; i < m_Labels->GetLabelCount(); ++i) {
            for (int j = 0; j < behavior(i)->GetInstanceCount(); ++j)
                instances += behavior(i)->GetInstance(j)->GetSegment() == known ? 1 : 0;
        }
        QCOMPARE(instances, record.m_State == CutSegment::SEGMENT_LABELED ? 1 : 0);
    }
}

void TestLabelling::checkTold(const LabelChange& change, const Records& before,
                              const Records& after) const
{
    // Of several changes of one segment, the first tells what it was, the last what it is.
    Records toldBefore;
    Records toldAfter;
    for (const SegmentChange& told : change.m_Segments) {
        toldBefore.emplace(told.m_Segment, told.m_Before);
        toldAfter[told.m_Segment] = told.m_After;
    }
    for (const auto& [known, record] : after) {
        const auto was = before.find(known);
        const SegmentRecord old = was == before.end() ? SegmentRecord() : was->second;
        if (toldAfter.count(known) == 0) {
            QVERIFY(isSame(old, record));
            continue;
        }
        QVERIFY(isSame(toldBefore[known], old));
        QVERIFY(isSame(toldAfter[known], record));
    }
}

LabelChange TestLabelling::doAnything(std::mt19937& random)
{
    const auto any = [&](int count) { return int(random() % unsigned(count)); };
    Labelling labelling(m_Cuts.get(), m_Labels.get());
    QList<CutSegment*> some;
    for (int i = any(4); i >= 0; --i)
        some.append(segment(any(m_Cuts->GetSegmentCount())));
    BehaviorLabel& target = *behavior(any(m_Labels->GetLabelCount()));
    const auto telling = Labelling::Telling(any(4));
    switch (any(12)) {
    case 0:
        return labelling.AddBehavior(QStringLiteral("new"));
    case 1:
        return m_Labels->GetLabelCount() > 1 ? labelling.RemoveBehavior(target) : LabelChange();
    case 2:
    case 3:
        return labelling.Label(some.first(), target, telling);
    case 4:
    case 5:
        return labelling.LabelAll(some, target, telling);
    case 6:
        return labelling.Unlabel(some, telling);
    case 7:
        return labelling.UnlabelFrom(target, some, telling);
    case 8:
        return labelling.Reject(some);
    case 9:
        return labelling.RejectAll();
    default:
        const int from = any(990);
        return labelling.Import({{QStringLiteral("read"), {{from, from + any(10)}}}});
    }
}

void TestLabelling::keepsTheRuleAndTellsAll()
{
    std::mt19937 random(11);
    m_Cuts->InsertCut(0, 1000, CutSegment::SEGMENT_CUT);
    m_Labels->AddLabel(new BehaviorLabel(QStringLiteral("Fly")));
    for (int step = 0; step < 700; ++step) {
        const int from = int(random() % 990);
        m_Cuts->InsertCut(from, from + int(random() % 10), CutSegment::SEGMENT_RESULT);
        const Records before = readAll();
        const LabelChange change = doAnything(random);
        const Records after = readAll();
        checkRule(after);
        checkTold(change, before, after);
        if (QTest::currentTestFailed())
            QFAIL(qPrintable(QStringLiteral("after step %1").arg(step)));
    }
    QVERIFY(m_Cuts->CountSegments(CutSegment::SEGMENT_LABELED) > 10);
}

void TestLabelling::tellsBehaviors()
{
    qRegisterMetaType<CutSegment*>("CutSegment*");
    qRegisterMetaType<QList<CutSegment*>>("QList<CutSegment*>");
    MakeCuts(*m_Cuts, "10 20 30 100");
    Labelling labelling(m_Cuts.get(), m_Labels.get());
    const LabelChange added = labelling.AddBehavior(QStringLiteral("Fly"));
    BehaviorLabel* fly = added.m_Behaviors.front().m_Behavior;
    BehaviorLabel* dive = labelling.AddBehavior(QStringLiteral("Dive")).m_Behaviors[0].m_Behavior;
    QCOMPARE(added.m_Behaviors.front().m_IndexAfter, 0);
    QCOMPARE(fly->GetColor(), QColor(Qt::red));
    QCOMPARE(dive->GetColor(), QColor(Qt::green));
    QSignalSpy flyLost(fly, &BehaviorLabel::CutRemoved);
    QSignalSpy diveGot(dive, &BehaviorLabel::CutAdded);
    QSignalSpy diveGotMany(dive, &BehaviorLabel::CutsAdded);

    labelling.LabelAll({segment(0), segment(1), segment(2)}, *fly);
    const LabelChange moved = labelling.Label(segment(1), *dive);
    QCOMPARE(moved.m_Segments.front().m_Before.m_Place, 1);
    QCOMPARE(flyLost.size(), 1);
    QCOMPARE(diveGot.size(), 1);
    labelling.LabelAll({segment(0), segment(2)}, *dive, Labelling::TELL_NEW);
    QCOMPARE(flyLost.size(), 1);
    QCOMPARE(diveGotMany.size(), 1);

    const LabelChange renamed = labelling.RenameBehavior(*dive, QStringLiteral("Swim"));
    QCOMPARE(renamed.m_Behaviors.front().m_NameBefore, QStringLiteral("Dive"));
    QVERIFY(labelling.RenameBehavior(*dive, QStringLiteral("Swim")).IsEmpty());
    const LabelChange removed = labelling.RemoveBehavior(*dive);
    QCOMPARE(removed.m_Behaviors.front().m_IndexBefore, 1);
    QCOMPARE(removed.m_Segments.size(), size_t(3));
    // The colour of a behaviour that is gone is not the next one's.
    QCOMPARE(labelling.AddBehavior({}).m_Behaviors[0].m_Behavior->GetColor(), QColor(Qt::black));
}

void TestLabelling::refuses()
{
    MakeCuts(*m_Cuts, "10 20R 30 100");
    Labelling labelling(m_Cuts.get(), m_Labels.get());
    BehaviorLabel* fly = labelling.AddBehavior(QStringLiteral("Fly")).m_Behaviors[0].m_Behavior;
    labelling.LabelAll({segment(0), segment(2)}, *fly);
    BehaviorLabel stranger;
    QCOMPARE(labelling.Label(segment(1), stranger).m_Refused, QList<CutSegment*>{segment(1)});
    QCOMPARE(ToText(*m_Cuts), QStringLiteral("L(0,10) R(10,20) L(20,30) (30,100)"));
    Labelling nothing(nullptr, nullptr);
    QVERIFY(nothing.AddBehavior({}).IsEmpty() && nothing.GetCandidates().isEmpty());
}

// What no neighbour can take becomes plain, but not before its neighbours have gone.
void TestLabelling::rejects()
{
    QFETCH(QString, segments);
    MakeCuts(*m_Cuts, qPrintable(segments));
    Labelling labelling(m_Cuts.get(), m_Labels.get());
    const auto change = labelling.RejectAll();
    QTEST(ToText(*m_Cuts), "left");
    QVERIFY(change.m_Refused.isEmpty());
    QVERIFY(labelling.RejectAll().IsEmpty());
}

void TestLabelling::rejects_data()
{
    QTest::addColumn<QString>("segments");
    QTest::addColumn<QString>("left");
    QTest::newRow("one by one") << "10 20R 30 40R 100"
                                << "(0,100)";
    QTest::newRow("between labels") << "10L 20R 30L 100"
                                    << "L(0,10) (10,20) L(20,30) (30,100)";
    QTest::newRow("touching") << "10 20R 30R 100"
                              << "(0,10) (10,20) (20,30) (30,100)";
    QTest::newRow("towards a label") << "10 20R 30R 40R 50L"
                                     << "(0,40) L(40,50)";
    QTest::newRow("behind a label") << "10L 20R 30R 40"
                                    << "L(0,10) (10,40)";
}

void TestLabelling::imports()
{
    MakeCuts(*m_Cuts, "10 100");
    Labelling labelling(m_Cuts.get(), m_Labels.get());
    const LabelChange change = labelling.Import(
        {{QStringLiteral("Fly"), {{20, 30}, {5, 15}}}, {QStringLiteral("Fly"), {{40, 50}}}});
    QCOMPARE(ToText(*m_Cuts), QStringLiteral("(0,10) (10,20) L(20,30) (30,40) L(40,50) (50,100)"));
    QCOMPARE(change.m_RefusedSpans, std::vector<RowSpan>({{5, 15}}));
    QCOMPARE(m_Labels->GetLabelCount(), 2);
    QCOMPARE(segment(4)->GetColor(), QColor(Qt::green));
}

QTEST_GUILESS_MAIN(TestLabelling)
#include "tst_labelling.moc"
