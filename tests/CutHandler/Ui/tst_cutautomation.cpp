#include "cutautomation.h"

#include "fieldlookup.h"
#include "modalscript.h"
#include "segmenttext.h"
#include "testdata.h"
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QSlider>
#include <QtTest>
#include <cmath>

namespace
{

enum Method { LINEAR, IMPORTANT_POINTS, PERIODIC, SHARP_TRANSITIONS, MINIMA_MAXIMA };

// Types a value into the field with that label; in a choice, takes the entry with that text.
void fill(QDialog* dialog, const QString& label, const QString& value)
{
    auto* field = FindField<QWidget>(dialog, label);
    QVERIFY2(field, qPrintable(label));
    if (auto* choice = qobject_cast<QComboBox*>(field)) {
        choice->setCurrentText(value);
        QCOMPARE(choice->currentText(), value);
        return;
    }
    auto* box = qobject_cast<QAbstractSpinBox*>(field);
    box->selectAll();
    QTest::keyClicks(box, value);
}

// The dialog's title and heading, and "label=value" of all fields.
QStringList describe(const QDialog* dialog)
{
    QStringList texts{dialog->windowTitle()};
    for (const QLabel* label : dialog->findChildren<QLabel*>()) {
        const QWidget* field = label->buddy();
        QString value = label->text();
        if (const auto* box = qobject_cast<const QSpinBox*>(field))
            value += QStringLiteral("=%1..%2").arg(box->value()).arg(box->maximum());
        if (const auto* box = qobject_cast<const QDoubleSpinBox*>(field))
            value += QStringLiteral("=") + box->text();
        if (const auto* box = qobject_cast<const QComboBox*>(field)) {
            QStringList choices;
            for (int i = 0; i < box->count(); ++i)
                choices.append(box->itemText(i));
            value += QStringLiteral("=") + choices.join(QLatin1Char('|'));
        }
        texts.append(value);
    }
    return texts;
}

// Answers the dialog of a method with "label=value" texts and returns the cuts.
QString generate(int method, const DataSet& data, const QStringList& answers,
                 const char* ends = nullptr)
{
    CutCollection cuts;
    const QByteArray all = QByteArray::number(data.GetRowCount());
    MakeCuts(cuts, ends ? ends : all.constData());
    ModalScript script;
    script.Then([=](QDialog* dialog) {
        for (const QString& answer : answers) {
            const QStringList pair = answer.split(QLatin1Char('='));
            fill(dialog, pair[0], pair[1]);
        }
        QTest::keyClick(dialog->focusWidget(), Qt::Key_Return);
    });
    CutAutomation automation;
    automation.setDataSet(&data);
    automation.setCutCollection(&cuts);
    if (!automation.generateCuts(method) || QGuiApplication::overrideCursor())
        return QStringLiteral("failed");
    return ToText(cuts);
}

} // namespace

class TestCutAutomation : public QObject
{
    Q_OBJECT
private slots:
    void refusals();
    void names();
    void dialogs_data();
    void dialogs();
    void generates_data();
    void generates();
    void sizeFollowsSlider();
    void importantPoints();
    void sharpTransitions();
};

void TestCutAutomation::refusals()
{
    CutAutomation automation;
    QVERIFY(!automation.generateCuts(LINEAR));
    QCOMPARE(automation.getErrorMessage(), QStringLiteral("No data set found"));
    const auto data = MakeDataSet("1\n2\n");
    automation.setDataSet(data.get());
    QVERIFY(!automation.generateCuts(PERIODIC));
    QCOMPARE(automation.getErrorMessage(), QStringLiteral("No cut collection found"));
    CutCollection cuts;
    MakeCuts(cuts, "2");
    automation.setCutCollection(&cuts);
    QVERIFY(!automation.generateCuts(5) && !automation.generateCuts(-1));
    QCOMPARE(automation.getErrorMessage(), QStringLiteral("No cut collection found"));
    QVERIFY(automation.generateCuts(LINEAR));
    QCOMPARE(ToText(cuts), QStringLiteral("(0,2)"));
}

void TestCutAutomation::names()
{
    QStringList names;
    for (int method = -1; method < 6; ++method)
        names.append(CutAutomation::getMethodName(method));
    QCOMPARE(names.join(QLatin1Char('|')),
             QStringLiteral("Error|Piecewise Linear Approximation|Perceptually Important Points|"
                            "Periodic|Sharp Transitions|Local Minima and Maxima|Error"));
}

void TestCutAutomation::dialogs_data()
{
    QTest::addColumn<int>("method");
    QTest::addColumn<QStringList>("texts");
    QTest::newRow("important points")
        << int(IMPORTANT_POINTS)
        << QStringList{
               "PIP Cut",
               "<h2>Perceptually Important Points (PIP) Cuts</h2>",
               "Attribute=A|B",
               "Distance Measure=Euclidean Distance|Vertical Distance|Perpendicular Distance",
               "Stopping Parameter=Number Partitions|Minimum Distance|Partition and Distance",
               "Minimum Distance=0.00",
               "Number Partitions=0..99"};
    QTest::newRow("periodic") << int(PERIODIC)
                              << QStringList{"Periodic Cuts", "<h2>Peroidic Cuts</h2>",
                                             "Cut Size=0..1000"};
    QTest::newRow("sharp transitions")
        << int(SHARP_TRANSITIONS)
        << QStringList{"",
                       "<h2>Local Variance</h2>",
                       "X Acc Attribute=A|B",
                       "Y Acc Attribute=A|B",
                       "Z Acc Attribute=A|B",
                       "Smoothing Window=10..99",
                       "Smoothing Window Overlap=5..99",
                       "Variance Window Size=100..100",
                       "Variance Threshold=0.10"};
    QTest::newRow("extrema") << int(MINIMA_MAXIMA)
                             << QStringList{"", "<h2>Local Minima / Maxima Cuts</h2>",
                                            "Attribute=A|B", "Persistance=0.00"};
}

// Each shows what it should, has the focus in its first field, and Cancel leaves all as it was.
void TestCutAutomation::dialogs()
{
    QFETCH(int, method);
    QFETCH(QStringList, texts);
    const auto data = MakeDataSet("1 2\n5 1\n2 7\n4 3\n");
    CutCollection cuts;
    MakeCuts(cuts, "4");
    QStringList shown;
    bool isFirstFocused = false;
    ModalScript script;
    script.Then([&](QDialog* dialog) {
        shown = describe(dialog);
        const auto* first = dialog->findChildren<QLabel*>().at(1)->buddy();
        isFirstFocused = dialog->focusWidget() == first;
        ClickButton(dialog, QStringLiteral("Cancel"));
    });
    CutAutomation automation;
    automation.setDataSet(data.get());
    automation.setCutCollection(&cuts);
    QVERIFY(automation.generateCuts(method));
    QCOMPARE(shown, texts);
    QVERIFY(isFirstFocused);
    QCOMPARE(ToText(cuts), QStringLiteral("(0,4)"));
    QCOMPARE(automation.getErrorMessage(), QString());
}

void TestCutAutomation::generates_data()
{
    QTest::addColumn<int>("method");
    QTest::addColumn<QString>("values");
    QTest::addColumn<QStringList>("answers");
    QTest::addColumn<QByteArray>("ends");
    QTest::addColumn<QString>("cuts");
    const QString ten = "1 1 1 1 1 1 1 1 1 1";
    const auto row = [](const char* name, int method, const QString& values,
                        const QStringList& answers, const char* ends, const QString& cuts) {
        QTest::newRow(name) << method << values << answers << QByteArray(ends) << cuts;
    };
    row("every 4", PERIODIC, ten, {"Cut Size=4"}, "10", "(0,4) (4,8) (8,10)");
    row("not at the end", PERIODIC, ten, {"Cut Size=5"}, "10", "(0,5) (5,10)");
    row("every 0", PERIODIC, ten, {"Cut Size=0"}, "10", "(0,10)");
    row("beyond the end", PERIODIC, ten, {"Cut Size=1000"}, "10", "(0,10)");
    row("a label stays", PERIODIC, ten, {"Cut Size=4"}, "2 9L 10", "(0,2) L(2,4) (4,8) (8,9) (9,10)");
    row("refused cuts are passed over", PERIODIC, ten, {"Cut Size=2"}, "5",
        "(0,2) (2,4) (4,5)");
    // Pairs (maximum 2, minimum 3) of 2 and (5, 6) of 6; the minimum at 0 is the lowest.
    row("all extrema", MINIMA_MAXIMA, "0 2 4 2 6 9 3 5", {"Persistance=0"}, "8",
        "(0,2) (2,3) (3,5) (5,6) (6,8)");
    row("persistent extrema", MINIMA_MAXIMA, "0 2 4 2 6 9 3 5", {"Persistance=2.01"}, "8",
        "(0,5) (5,6) (6,8)");
    row("monotonic", MINIMA_MAXIMA, "1 2 3 4 5", {}, "5", "(0,5)");
    row("gaps", MINIMA_MAXIMA, "nan 5 nan 1 nan 3", {}, "6", "(0,6)");
    row("one row", MINIMA_MAXIMA, "1", {}, "1", "(0,1)");
    row("no rows", MINIMA_MAXIMA, "", {}, "0", "(0,0)");
    // Splits at 3, the farthest from the line, and once only, since 9 is not reached again.
    row("one point", IMPORTANT_POINTS, "0 0 0 9 0 0 0 0",
        {"Distance Measure=Vertical Distance", "Stopping Parameter=Number Partitions",
         "Minimum Distance=9", "Number Partitions=5"},
        "8", "(0,0) (0,3) (3,3) (3,7) (7,8)");
    row("a window larger than the recording", SHARP_TRANSITIONS, ten, {"Variance Threshold=0"},
        "10", "(0,10)");
}

void TestCutAutomation::generates()
{
    QFETCH(int, method);
    QFETCH(QString, values);
    QFETCH(QStringList, answers);
    QFETCH(QByteArray, ends);
    QFETCH(QString, cuts);
    std::vector<double> column;
    for (const QString& value : values.split(QLatin1Char(' '), Qt::SkipEmptyParts))
        column.push_back(value.toDouble());
    const auto data = MakeColumn(column);
    QCOMPARE(generate(method, *data, answers, ends.constData()), cuts);
}

QTEST_MAIN(TestCutAutomation)
#include "tst_cutautomation.moc"
