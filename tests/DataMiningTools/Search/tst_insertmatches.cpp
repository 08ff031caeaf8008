#include "insertmatches.h"
#include "progress.h"
#include "segmenttext.h"
#include <QTest>

Q_DECLARE_METATYPE(SearchMatches)

class TestInsertMatches : public QObject
{
    Q_OBJECT
private slots:
    void inserts_data();
    void inserts();
};

namespace
{

QVector<int> numbers(const MatchFates& fates)
{
    return {fates.m_Inserted, fates.m_CrossPlainCuts, fates.m_CrossLabels, fates.m_CrossResults};
}

} // namespace

void TestInsertMatches::inserts_data()
{
    QTest::addColumn<QString>("cuts");
    QTest::addColumn<SearchMatches>("matches");
    QTest::addColumn<bool>("refines");
    QTest::addColumn<bool>("merges");
    QTest::addColumn<QVector<int>>("fates");
    QTest::addColumn<QString>("result");
    const SearchMatches across{{{15, 25}}};
    QTest::newRow("plain cuts stay")
        << "20 40" << across << false << false << QVector<int>{0, 1, 0, 0} << "(0,20) (20,40)";
    QTest::newRow("plain cuts merge")
        << "18 20 22 40 60" << across << false << true << QVector<int>{1, 0, 0, 0}
        << "(0,15) R(15,25) (25,40) (40,60)";
    QTest::newRow("only touching")
        << "15 25 40" << across << false << true << QVector<int>{1, 0, 0, 0}
        << "(0,15) (15,15) R(15,25) (25,25) (25,40)";
    QTest::newRow("label and cut") << "18 20L 40" << across << false << true
                                   << QVector<int>{0, 0, 1, 0} << "(0,18) L(18,20) (20,40)";
    QTest::newRow("inside a label") << "10 30L 40" << across << false << true
                                    << QVector<int>{0, 0, 1, 0} << "(0,10) L(10,30) (30,40)";
    QTest::newRow("result") << "18 20R 40" << across << false << true << QVector<int>{0, 0, 0, 1}
                            << "(0,18) R(18,20) (20,40)";
    QTest::newRow("refined") << "18 20R 40" << across << true << false << QVector<int>{1, 0, 0, 0}
                             << "(0,15) R(15,25) (25,40)";
    QTest::newRow("each other, ends exchanged")
        << "40" << SearchMatches{{{12, 5}}, {{10, 20}}, {{12, 20}}} << false << true
        << QVector<int>{2, 0, 0, 1} << "(0,5) R(5,12) (12,12) R(12,20) (20,40)";
    QTest::newRow("beyond the rows") << "35 40" << SearchMatches{{{30, 50}}} << false << true
                                     << QVector<int>{0, 1, 0, 0} << "(0,35) (35,40)";
}

void TestInsertMatches::inserts()
{
    QFETCH(QString, cuts);
    QFETCH(SearchMatches, matches);
    QFETCH(bool, refines);
    QFETCH(bool, merges);
    CutCollection collection;
    MakeCuts(collection, qPrintable(cuts));
    const QString before = ToText(collection);
    const MatchInsertion insertion{refines ? CutSegment::SEGMENT_RESULT : CutSegment::SEGMENT_CUT,
                                   merges};
    QTEST(numbers(ForecastMatches(collection, matches, insertion)), "fates");
    QCOMPARE(ToText(collection), before);
    QTEST(numbers(InsertMatches(collection, matches, insertion, NoProgress::Shared())), "fates");
    QTEST(ToText(collection), "result");
    // Merged labels return to stored ends, which leave no gap.
    collection.MergeLabels(0);
    QTEST(ToText(collection), "result");
}

QTEST_APPLESS_MAIN(TestInsertMatches)
#include "tst_insertmatches.moc"
