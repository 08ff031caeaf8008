#include "cutautomation.h"

#include "fieldlookup.h"
#include "localvariancedialog.h"
#include "modalscript.h"
#include "periodiccutdialog.h"
#include "pipcutdialog.h"
#include "segmenttext.h"
#include "testdata.h"
#include <QAbstractButton>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QInputDialog>
#include <QMessageBox>
#include <QSlider>
#include <QtTest>
#include <functional>
#include <random>

namespace
{

enum Method { LINEAR, IMPORTANT_POINTS, PERIODIC, SHARP_TRANSITIONS, MINIMA_MAXIMA };

// Types a value into the field with that label; in a choice, takes the entry with that text.
void fill(QDialog* dialog, const QString& label, const QString& value)
{
    if (auto* choice = FindField<QComboBox>(dialog, label)) {
        choice->setCurrentText(value);
        return;
    }
    auto* box = FindField<QAbstractSpinBox>(dialog, label);
    box->selectAll();
    QTest::keyClicks(box, value);
}

// The dialog's title and heading, and "label=value to maximum" or all choices of each field.
QString describe(const QDialog* dialog)
{
    QStringList texts{dialog->windowTitle()};
    for (const QLabel* label : dialog->findChildren<QLabel*>()) {
        QWidget* field = label->buddy();
        QStringList values;
        if (const auto* box = qobject_cast<const QAbstractSpinBox*>(field))
            values = QStringList{box->text(), box->property("maximum").toString()};
        if (const auto* box = qobject_cast<const QComboBox*>(field)) {
            for (int i = 0; i < box->count(); ++i)
                values.append(box->itemText(i));
        }
        texts.append(label->text() + QLatin1Char('=') + values.join(QLatin1Char('|')));
    }
    return texts.join(QLatin1Char('\n'));
}

// Answers the dialog of a method, a line "label=value" for each field, and returns the cuts.
// Later windows are answered by script.
QString generate(int method, const DataSet& data, const QString& answers, const QByteArray& ends,
                 const std::function<void(ModalScript&)>& later = {})
{
    CutCollection cuts;
    MakeCuts(cuts, ends.constData());
    ModalScript script;
    script.Then([=](QDialog* dialog) {
        for (const QString& answer : answers.split(QLatin1Char('\n'), Qt::SkipEmptyParts))
            fill(dialog, answer.section(QLatin1Char('='), 0, 0),
                 answer.section(QLatin1Char('='), 1));
        QTest::keyClick(dialog->focusWidget(), Qt::Key_Return);
    });
    if (later)
        later(script);
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
    void dialogs_data();
    void dialogs();
    void generates_data();
    void generates();
    void asksFirst_data();
    void asksFirst();
    void stops_data();
    void stops();
    void sizeFollowsSlider();
    void startValues();
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
    QCOMPARE(CutAutomation::getMethodName(5), QStringLiteral("Error"));
    QCOMPARE(automation.getErrorMessage(), QStringLiteral("No cut collection found"));
    QVERIFY(automation.generateCuts(LINEAR));
    QCOMPARE(ToText(cuts), QStringLiteral("(0,2)"));
}

void TestCutAutomation::dialogs_data()
{
    QTest::addColumn<int>("method");
    QTest::addColumn<QString>("texts");
    const auto row = [](const char* name, int method, const char* texts) {
        QTest::newRow(name) << method << QString::fromLatin1(texts);
    };
    row("important points", IMPORTANT_POINTS,
        "PIP Cut\n<h2>Perceptually Important Points (PIP) Cuts</h2>=\nAttribute=A|B\n"
        "Distance Measure=Euclidean Distance|Vertical Distance|Perpendicular Distance\n"
        "Stopping Parameter=Number Partitions|Minimum Distance|Partition and Distance\n"
        "Minimum Distance=0.000000|100258\nNumber Partitions=0|120");
    row("periodic", PERIODIC, "Periodic Cuts\n<h2>Peroidic Cuts</h2>=\nCut Size=0|1000");
    row("sharp transitions", SHARP_TRANSITIONS,
        "\n<h2>Local Variance</h2>=\nX Acc Attribute=A|B\nY Acc Attribute=A|B\n"
        "Z Acc Attribute=A|B\nSmoothing Window=10|120\nSmoothing Window Overlap=5|120\n"
        "Variance Window Size=100|120\nVariance Threshold=0.100000|2500900081");
    row("extrema", MINIMA_MAXIMA,
        "\n<h2>Local Minima / Maxima Cuts</h2>=\nAttribute=A|B\n"
        "Persistance=0.000000|50009");
}

// Each shows what it should, has the focus in its first field, and Cancel leaves all as it was.
void TestCutAutomation::dialogs()
{
    QFETCH(int, method);
    QFETCH(QString, texts);
    const auto data = MakeDataSet(QByteArray("1 -9\n5 50000\n").repeated(60).constData());
    CutCollection cuts;
    MakeCuts(cuts, "120");
    QString shown;
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
    QCOMPARE(ToText(cuts), QStringLiteral("(0,120)"));
    QCOMPARE(automation.getErrorMessage(), QString());
}

void TestCutAutomation::generates_data()
{
    QTest::addColumn<int>("method");
    QTest::addColumn<QByteArray>("values");
    QTest::addColumn<QString>("answers");
    QTest::addColumn<QByteArray>("ends");
    QTest::addColumn<QString>("cuts");
    const auto row = [](const char* name, int method, const QByteArray& values, const char* answers,
                        const char* ends, const char* cuts) {
        QTest::newRow(name) << method << values << QString::fromLatin1(answers) << QByteArray(ends)
                            << QString::fromLatin1(cuts);
    };
    const QByteArray ten = QByteArray("1\n").repeated(10);
    row("every 4", PERIODIC, ten, "Cut Size=4", "10", "(0,4) (4,8) (8,10)");
    row("every 0", PERIODIC, ten, "Cut Size=0", "10", "(0,10)");
    row("beyond the end", PERIODIC, ten, "Cut Size=1000", "10", "(0,10)");
    row("at a label's end", PERIODIC, ten, "Cut Size=4", "4L 10", "L(0,4) (4,4) (4,8) (8,10)");
    row("refused cuts", PERIODIC, ten, "Cut Size=2", "5", "(0,2) (2,4) (4,5)");
    // The lowest minimum, in row 0, has no maximum.
    const QByteArray curve = "0\n2\n4\n2\n6\n9\n3\n5\n";
    row("all extrema", MINIMA_MAXIMA, curve, "Persistance=0", "8", "(0,2) (2,3) (3,5) (5,6) (6,8)");
    row("persistent extrema", MINIMA_MAXIMA, curve, "Persistance=2.01", "8", "(0,5) (5,6) (6,8)");
    row("extrema between gaps", MINIMA_MAXIMA, "nan\n1\nnan\n5\nnan\n3\n", "", "6",
        "(0,3) (3,5) (5,6)");
    const char* points = "Distance Measure=Vertical Distance\nMinimum Distance=9\n"
                         "Number Partitions=5";
    const QByteArray peak = "0\n0\n0\n9\n0\n0\n0\n0\n";
    // Row 3 is 9 from the line, no other row as far from the next lines.
    row("one point", IMPORTANT_POINTS, peak, points, "8", "(0,0) (0,3) (3,3) (3,7) (7,8)");
    row("one point, cut across", IMPORTANT_POINTS, peak, points, "2 8", "(0,2) (2,3) (3,7) (7,8)");
    // A window lies half on either side of the step.
    const QByteArray step = QByteArray("0\n").repeated(200) + QByteArray("8\n").repeated(200);
    row("step", SHARP_TRANSITIONS, step, "Variance Window Size=50\nVariance Threshold=1", "400",
        "(0,172) (172,400)");
    row("window beyond the recording", SHARP_TRANSITIONS, ten, "Variance Threshold=0", "10",
        "(0,10)");
}

void TestCutAutomation::generates()
{
    QFETCH(int, method);
    QFETCH(QByteArray, values);
    QFETCH(QString, answers);
    QFETCH(QByteArray, ends);
    QFETCH(QString, cuts);
    const auto data = MakeDataSet(values.constData());
    QCOMPARE(generate(method, *data, answers, ends), cuts);
}

void TestCutAutomation::asksFirst_data()
{
    QTest::addColumn<int>("method");
    QTest::addColumn<int>("rows");
    QTest::addColumn<QByteArray>("ends");
    QTest::addColumn<QString>("question");
    QTest::addColumn<int>("answer");
    QTest::addColumn<QString>("cuts");
    const auto row = [](const char* name, int method, int rows, const char* ends,
                        const char* question, int answer, const char* cuts) {
        QTest::newRow(name) << method << rows << QByteArray(ends) << QString::fromLatin1(question)
                            << answer << QString::fromLatin1(cuts);
    };
    row("not many", PERIODIC, 10'001, "10001", "", 0, "10001 segments");
    const char* many = "10,001 cuts would be made, and there is no undo. Make them?";
    row("many", PERIODIC, 10'002, "10002", many, QMessageBox::Yes, "10002 segments");
    row("too many", PERIODIC, 10'002, "10002", many, QMessageBox::No, "(0,10002)");
    row("many, but refused", PERIODIC, 10'002, "5", "", 0, "(0,1) (1,2) (2,3) (3,4) (4,5) (5,5)");
    const char* inLabel = "8 cuts would be made, 3 of them inside labels, and there is no undo.\n"
                          "A label that is cut keeps only the part before the cut.";
    row("label", PERIODIC, 9, "3 7L 9", inLabel, -1, "(0,3) L(3,7) (7,9)");
    row("label left whole", PERIODIC, 9, "3 7L 9", inLabel, 0,
        "(0,1) (1,2) (2,3) (3,3) L(3,7) (7,7) (7,8) (8,9)");
    row("label cut", PERIODIC, 9, "3 7L 9", inLabel, 1,
        "(0,1) (1,2) (2,3) (3,3) L(3,4) (4,5) (5,6) (6,7) (7,7) (7,8) (8,9)");
    const char* inLabels = "2 cuts would be made, 1 of them inside labels, and there is no undo.\n"
                           "A label that is cut keeps only the part before the cut.";
    row("points, label left whole", IMPORTANT_POINTS, 8, "4 8L", inLabels, 0,
        "(0,0) (0,4) (4,4) L(4,8)");
    row("points, label cut", IMPORTANT_POINTS, 8, "4 8L", inLabels, 1,
        "(0,0) (0,4) (4,4) L(4,4) (4,7) (7,8)");
}

// Says what it is about to do where that is much, or costs a label, and does what was answered.
void TestCutAutomation::asksFirst()
{
    QFETCH(int, method);
    QFETCH(int, rows);
    QFETCH(QByteArray, ends);
    QFETCH(QString, question);
    QFETCH(int, answer);
    QFETCH(QString, cuts);
    DataSet data;
    std::vector<double> values(size_t(rows), 0.0);
    values[4] = 9.0;
    data.AddColumn(QStringLiteral("A"), ATTRIBUTE_OTHER, DataColumn(values));
    QString asked;
    const auto reply = [&](ModalScript& script) {
        if (question.contains(QStringLiteral("label")))
            script.On<QInputDialog>([&](QInputDialog* dialog) {
                asked = dialog->labelText();
                dialog->findChild<QComboBox*>()->setCurrentIndex(std::max(answer, 0));
                answer == -1 ? dialog->reject() : dialog->accept();
            });
        else if (!question.isEmpty())
            script.On<QMessageBox>([&](QMessageBox* box) {
                asked = box->text();
                box->button(QMessageBox::StandardButton(answer))->click();
            });
    };
    const char* answers = method == PERIODIC
                              ? "Cut Size=1"
                              : "Distance Measure=Vertical Distance\nMinimum Distance=8";
    const QString made = generate(method, data, QString::fromLatin1(answers), ends, reply);
    QCOMPARE(asked, question);
    const QString count = QStringLiteral("%1 segments").arg(made.count(QLatin1Char('(')));
    QCOMPARE(cuts.endsWith(QStringLiteral("segments")) ? count : made, cuts);
}

void TestCutAutomation::stops_data()
{
    QTest::addColumn<int>("method");
    QTest::addColumn<QString>("answers");
    QTest::newRow("all points") << int(IMPORTANT_POINTS)
                                << QStringLiteral("Stopping Parameter=Minimum Distance");
    QTest::newRow("long window") << int(SHARP_TRANSITIONS)
                                 << QStringLiteral("Variance Window Size=1000000");
    QTest::newRow("long average") << int(SHARP_TRANSITIONS)
                                  << QStringLiteral("Smoothing Window=3000000\n"
                                                    "Smoothing Window Overlap=1");
}

// Searches of many seconds end soon after Cancel, which can be pressed after half a second.
void TestCutAutomation::stops()
{
    QFETCH(int, method);
    QFETCH(QString, answers);
    std::vector<double> values(6'000'000);
    std::mt19937 random(1);
    for (double& value : values)
        value = double(random() % 1000);
    DataSet data;
    data.AddColumn(QStringLiteral("A"), ATTRIBUTE_OTHER, DataColumn(values));
    QElapsedTimer sinceStop;
    const QString cuts = generate(method, data, answers, "900 100000L 6000000", [&](auto& script) {
        script.StopWork();
        sinceStop.start();
    });
    QCOMPARE(cuts, QStringLiteral("(0,900) L(900,100000) (100000,6000000)"));
    QVERIFY2(sinceStop.elapsed() < 3000, qPrintable(QString::number(sinceStop.elapsed())));
}

void TestCutAutomation::sizeFollowsSlider()
{
    PeriodicCutDialog dialog({});
    auto* slider = dialog.findChild<QSlider*>();
    auto* box = FindField<QSpinBox>(&dialog, QStringLiteral("Cut Size"));
    slider->setValue(700);
    QCOMPARE(dialog.GetParameters().m_CutSize, 700);
    box->setValue(30);
    QCOMPARE(slider->value(), 30);
}

// Each value comes back from its own field.
void TestCutAutomation::startValues()
{
    const auto data = MakeDataSet("1 2 3\n");
    const auto points = PipCutDialog({2, 1, 2, 3.000005, 42}, *data).GetParameters();
    QCOMPARE((QList<int>{points.m_Attribute, points.m_Measure, points.m_Stopping,
                         qRound(points.m_MinimumDistance * 1e6), points.m_Partitions}),
             (QList<int>{2, 1, 2, 3000005, 42}));
    const auto variance = LocalVarianceDialog({2, 0, 1, 300, 20, 7000, 1.5}, *data).GetParameters();
    QCOMPARE((QList<int>{variance.m_X, variance.m_Y, variance.m_Z, variance.m_SmoothingWindow,
                         variance.m_SmoothingOverlap, variance.m_VarianceWindow,
                         int(variance.m_Threshold * 10)}),
             (QList<int>{2, 0, 1, 300, 20, 7000, 15}));
}

QTEST_MAIN(TestCutAutomation)
#include "tst_cutautomation.moc"
