#include "labelsegment.h"
#include "ruleextractor.h"
#include "segmenttext.h"
#include "stoppingprogress.h"
#include "testdata.h"
#include "thresholdextractor.h"
#include <QtTest>
#include <limits>

namespace
{

QString toText(const SearchMatches& matches)
{
    QStringList texts;
    for (const SearchMatch& match : matches) {
        const QString count =
            match.m_Count == 1 ? QString() : QStringLiteral("x%1").arg(match.m_Count);
        texts.append(
            QStringLiteral("(%1,%2)%3").arg(match.m_Rows.m_From).arg(match.m_Rows.m_To).arg(count));
    }
    return texts.join(QLatin1Char(' '));
}

QString findRuns(const DataSet& data, const CutCollection& cuts,
                 CutSegment::SEGMENT_STATE searchMode,
                 const std::vector<ThresholdParameter>& parameters, int minimumLength)
{
    ThresholdExtractor extractor(&data, &cuts, searchMode);
    extractor.SetParameters(parameters);
    extractor.SetMinimumLength(minimumLength);
    NoProgress progress;
    extractor.Extract(progress);
    return toText(extractor.GetMatches());
}

/// Segments of behaviours "A", "B", ... as the text of MakeCuts tells: each labelled segment takes
/// the next letter of behaviours.
struct LabelledCuts {
    LabelledCuts(const char* ends, const QString& behaviours)
    {
        MakeCuts(m_Cuts, ends);
        int labelled = 0;
        for (int i = 0; i < m_Cuts.GetSegmentCount(); ++i) {
            if (m_Cuts.GetSegment(i)->GetState() != CutSegment::SEGMENT_LABELED)
                continue;
            const QString name = behaviours.mid(labelled++, 1);
            if (!m_Labels.FindLabel(name))
                m_Labels.AddLabel(new BehaviorLabel(name));
            LabelSegment(*m_Labels.FindLabel(name), m_Cuts.GetSegment(i));
        }
    }

    CutCollection m_Cuts;
    LabelCollection m_Labels;
};

SearchMatches findRule(const LabelledCuts& cuts, const QString& rule, int length, int rows,
                       CutSegment::SEGMENT_STATE searchMode = CutSegment::SEGMENT_CUT)
{
    const auto data = MakeColumn(std::vector<double>(size_t(rows)));
    RuleExtractor extractor(data.get(), &cuts.m_Cuts, &cuts.m_Labels, searchMode);
    extractor.SetRuleLabels(rule.split(QString(), Qt::SkipEmptyParts));
    extractor.SetSearchLength(length);
    NoProgress progress;
    extractor.Extract(progress);
    return extractor.GetMatches();
}

} // namespace

class TestSearchExtractors : public QObject
{
    Q_OBJECT
private slots:
    void runs();
    void rules_data();
    void rules();
    void countsManyWays();
    void keepsMatchesWhenStopped();
};

void TestSearchExtractors::runs()
{
    const auto data = MakeDataSet("1 5\n1 5\n1 6\n1 6\n2 0");
    data->GetRow(4)->SetValue(1, std::numeric_limits<double>::quiet_NaN());
    CutCollection cuts;
    // Two rows more than there are.
    MakeCuts(cuts, "2R 3 7");
    const ThresholdParameter low{ThresholdParameter::VALUE_ABOVE, 0, 2};
    const ThresholdParameter any{ThresholdParameter::ATTRIBUTE_ABOVE_OR_EQUAL, 0, 0};
    // A run ends with its segment, by its last row; one of exactly the length stays.
    QCOMPARE(findRuns(*data, cuts, CutSegment::SEGMENT_CUT, {any}, 0),
             QStringLiteral("(2,2) (3,4)"));
    QCOMPARE(findRuns(*data, cuts, CutSegment::SEGMENT_CUT, {any}, 1), QStringLiteral("(3,4)"));
    QCOMPARE(findRuns(*data, cuts, CutSegment::SEGMENT_CUT, {any}, 2), QString());
    QCOMPARE(findRuns(*data, cuts, CutSegment::SEGMENT_CUT, {any, {0, 1, 9}}, 0),
             QStringLiteral("(2,2) (3,3)"));
    QCOMPARE(findRuns(*data, cuts, CutSegment::SEGMENT_RESULT, {low, {1, 1, 5}}, 0),
             QStringLiteral("(0,1)"));
    QCOMPARE(findRuns(*data, cuts, CutSegment::SEGMENT_CUT, {}, 0), QString());
    // Attributes and operators that there are not.
    for (const ThresholdParameter& unknown :
         {ThresholdParameter{0, 2, 9}, ThresholdParameter{0, -1, 9}, ThresholdParameter{4, 0, 9}})
        QCOMPARE(findRuns(*data, cuts, CutSegment::SEGMENT_CUT, {any, unknown}, 0), QString());
}

void TestSearchExtractors::rules_data()
{
    QTest::addColumn<QByteArray>("ends");
    QTest::addColumn<QString>("behaviours");
    QTest::addColumn<QString>("rule");
    QTest::addColumn<int>("length");
    QTest::addColumn<QString>("expected");
    const auto row = [](const char* name, const char* ends, const char* behaviours,
                        const char* rule, int length, const char* expected) {
        QTest::newRow(name) << QByteArray(ends) << QString::fromLatin1(behaviours)
                            << QString::fromLatin1(rule) << length << QString::fromLatin1(expected);
    };
    const char* twice = "10L 20 30L 100";
    row("one label", twice, "AA", "A", 10, "(10,20) (30,40)");
    row("nothing as long behind the first", twice, "AA", "A", 11, "(30,41)");
    row("as long as the last", twice, "AA", "A", 70, "(30,100)");
    row("one more than the last", twice, "AA", "A", 71, "");
    row("negative length", twice, "AA", "A", -1, "");
    row("behaviour that is gone", twice, "AA", "C", 10, "");
    row("largest gap", "10L 610 620L 700", "AB", "AB", 20, "(620,640)");
    row("gap too large", "10L 611 620L 700", "AB", "AB", 20, "");
    row("gaps count from the label before", "10L 500 510L 1000 1010L 1100", "ABC", "ABC", 20,
        "(1010,1030)");
    row("two ways", "10L 20L 30L 100", "AAB", "AB", 20, "(30,50)x2");
    row("label behind", "10L 20L 30R 100", "AB", "AB", 5, "");
    row("beyond the data", "1190L 1300", "A", "A", 11, "");
    row("up to the data's end", "1190L 1300", "A", "A", 10, "(1190,1200)");
}

void TestSearchExtractors::rules()
{
    QFETCH(QByteArray, ends);
    QFETCH(QString, behaviours);
    QFETCH(QString, rule);
    QFETCH(int, length);
    const LabelledCuts cuts(ends.constData(), behaviours);
    QTEST(toText(findRule(cuts, rule, length, 1200)), "expected");
}

// A rule of many labels leads to one segment in more ways than memory could hold.
void TestSearchExtractors::countsManyWays()
{
    QString ends;
    for (int i = 1; i <= 400; ++i)
        ends.append(QStringLiteral("%1L ").arg(i * 2));
    const LabelledCuts cuts((ends + QStringLiteral("1000")).toLatin1().constData(),
                            QString(400, QLatin1Char('A')));
    // The ends of the first of two lie from row 198 to row 798.
    const SearchMatches few = findRule(cuts, QStringLiteral("AA"), 5, 1000);
    QCOMPARE(toText(few), QStringLiteral("(800,805)x301"));
    const SearchMatches many = findRule(cuts, QString(40, QLatin1Char('A')), 5, 1000);
    QCOMPARE(CountMatches(many), RuleExtractor::MaximumWays);
}

// Whoever stops, at whatever row or label, keeps what was found before.
void TestSearchExtractors::keepsMatchesWhenStopped()
{
    const auto data = MakeColumn(std::vector<double>(20000, 1.0));
    const LabelledCuts cuts("10L 20L 30L 5000 15000", QStringLiteral("AAA"));
    ThresholdExtractor runs(data.get(), &cuts.m_Cuts, CutSegment::SEGMENT_CUT);
    runs.SetParameters({{ThresholdParameter::ATTRIBUTE_ABOVE, 0, 0}});
    RuleExtractor rule(data.get(), &cuts.m_Cuts, &cuts.m_Labels, CutSegment::SEGMENT_CUT);
    rule.SetSearchLength(7);
    rule.SetRuleLabels({QStringLiteral("A"), QStringLiteral("A"), QStringLiteral("A")});
    NoProgress progress;
    QVERIFY(runs.Extract(progress) && rule.Extract(progress));
    const QString found = toText(runs.GetMatches()) + toText(rule.GetMatches());
    QCOMPARE(found, QStringLiteral("(30,4999) (5000,14999)(30,37)"));
    for (int step = 1; step <= 3; ++step) {
        StoppingProgress atRows(step);
        StoppingProgress atLabels(step);
        runs.SetMinimumLength(9000);
        rule.SetSearchLength(9);
        QVERIFY(!runs.Extract(atRows));
        QCOMPARE(rule.Extract(atLabels), step > 2);
    }
    QCOMPARE(toText(runs.GetMatches()), QStringLiteral("(30,4999) (5000,14999)"));
}

QTEST_MAIN(TestSearchExtractors)
#include "tst_searchextractors.moc"
