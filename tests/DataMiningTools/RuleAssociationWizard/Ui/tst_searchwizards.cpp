#include "attributebox.h"
#include "fieldlookup.h"
#include "insertionforecast.h"
#include "labelsegment.h"
#include "modalscript.h"
#include "mousedrag.h"
#include "resizewizardpage.h"
#include "ruleassociationwizard.h"
#include "segmentresizewidget.h"
#include "segmenttext.h"
#include "selectionmultiplelineplotwidget.h"
#include "testdata.h"
#include "thresholdparameterwidget.h"
#include "thresholdwizard.h"
#include <QAbstractButton>
#include <QAbstractScrollArea>
#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QMessageBox>
#include <QProgressDialog>
#include <QScrollBar>
#include <QSpinBox>
#include <QTimer>
#include <QWheelEvent>
#include <QtTest>

namespace
{

void next(const QWizard& wizard)
{
    ClickButton(&wizard, QStringLiteral("Next >"));
}

void finish(const QWizard& wizard)
{
    ClickButton(&wizard, QStringLiteral("Finish"));
}

void type(QAbstractSpinBox* box, const char* text)
{
    box->setFocus();
    box->selectAll();
    QTest::keyClicks(box, QLatin1String(text));
}

// The number of matches that the page tells.
QString number(const QWizard& wizard)
{
    for (const QLabel* label : wizard.currentPage()->findChildren<QLabel*>()) {
        if (label->text().startsWith(QLatin1String("Number matches: ")))
            return label->text().mid(16);
    }
    return QString();
}

// Runs the search; the number of matches.
QString extract(const QWizard& wizard)
{
    ClickButton(&wizard, QStringLiteral("Extract Results"));
    return number(wizard);
}

// Adds a parameter on attribute "A" by the text of its comparison.
void addParameter(const QWizard& wizard, const char* comparison, const char* value)
{
    ClickButton(&wizard, QStringLiteral("Add Parameter"));
    const auto* row = wizard.findChildren<ThresholdParameterWidget*>().last();
    FindField<QComboBox>(row, QStringLiteral("Parameter"))
        ->setCurrentText(QLatin1String(comparison));
    type(row->findChild<QDoubleSpinBox*>(), value);
}

void addRuleLabel(const QWizard& wizard, const char* name)
{
    ClickButton(&wizard, QStringLiteral("Add New"));
    QComboBox* newest = nullptr;
    for (const QLabel* label : wizard.currentPage()->findChildren<QLabel*>()) {
        if (label->text() == QLatin1String("Label"))
            newest = qobject_cast<QComboBox*>(label->buddy());
    }
    newest->setCurrentText(QLatin1String(name));
}

// The box for the first row of the match in view that tells it.
QSpinBox* boxOfMatch(const QWizard& wizard, int from)
{
    for (const auto* resize : wizard.findChildren<SegmentResizeWidget*>()) {
        auto* box = resize->findChild<QSpinBox*>();
        if (box->isVisible() && box->value() == from)
            return box;
    }
    return nullptr;
}

// Whether the widget keeps the turn to itself.
bool takesWheel(QWidget* widget)
{
    const QPoint middle = widget->rect().center();
    QWheelEvent wheel(middle, widget->mapToGlobal(middle), {}, QPoint(0, -120), Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(widget, &wheel);
    return wheel.isAccepted();
}

} // namespace

class TestSearchWizards : public QObject
{
    Q_OBJECT
private slots:
    void cleanup() { QCOMPARE(TakeUserErrors(), QStringList()); }
    void comparisonsReadTrue_data();
    void comparisonsReadTrue();
    void insertsRuns();
    void fitsItsAttribute();
    void rejectsMatches();
    void insertsWhatFollows();
    void searchesNothing();
    void tellsWhatIsKeptOut();
    void asksBeforeResultsGo();
    void keepsEndsOutOfView();
};

void TestSearchWizards::comparisonsReadTrue_data()
{
    QTest::addColumn<QByteArray>("comparison");
    QTest::addColumn<QString>("expected");
    QTest::newRow(">") << QByteArray("value > attribute") << QStringLiteral("R(0,1)");
    QTest::newRow(">=") << QByteArray("value >= attribute") << QStringLiteral("R(0,2)");
    QTest::newRow("<") << QByteArray("attribute > value") << QStringLiteral("R(3,4)");
    QTest::newRow("<=") << QByteArray("attribute >= value") << QStringLiteral("R(2,4)");
}

void TestSearchWizards::comparisonsReadTrue()
{
    QFETCH(QByteArray, comparison);
    QFETCH(QString, expected);
    const auto data = MakeColumn({-2, -1.75, -1.03125, 0, 3});
    CutCollection cuts;
    MakeCuts(cuts, "5");
    ThresholdWizard wizard(data.get(), &cuts, CutSegment::SEGMENT_CUT);
    wizard.show();
    next(wizard);
    QVERIFY(!FindButton(&wizard, QStringLiteral("Next >"))->isEnabled());
    addParameter(wizard, comparison.constData(), "-1.03125");
    QCOMPARE(extract(wizard), QStringLiteral("1"));
    next(wizard);
    QCOMPARE(ToText(cuts), QStringLiteral("(0,5)"));
    finish(wizard);
    QVERIFY2(ToText(cuts).contains(expected), qPrintable(ToText(cuts)));
}

void TestSearchWizards::insertsRuns()
{
    const auto data = MakeColumn({9, 9, 1, 9, 9, 9, 9, 9, 9, 1, 9, 9, 9});
    CutCollection cuts;
    MakeCuts(cuts, "4 6L 13");
    const QString before = ToText(cuts);
    ThresholdWizard wizard(data.get(), &cuts, CutSegment::SEGMENT_CUT);
    wizard.show();
    next(wizard);
    addParameter(wizard, "attribute > value", "2");
    addParameter(wizard, "value > attribute", "0");
    QCOMPARE(extract(wizard), QStringLiteral("0"));
    ClickButton(wizard.findChildren<ThresholdParameterWidget*>().last(), QStringLiteral("Remove"));
    QCOMPARE(number(wizard), QString());
    QCOMPARE(extract(wizard), QStringLiteral("3"));
    auto* length = FindField<QSpinBox>(wizard.currentPage(), QStringLiteral("Minimum Length"));
    type(length, "2");
    // Enter searches first, and goes on once nothing has changed since.
    QTest::keyClick(length, Qt::Key_Return);
    QCOMPARE(number(wizard), QStringLiteral("2"));
    const QWizardPage* filter = wizard.currentPage();
    // The matches of another search are none of this one; one that is stopped has none.
    type(length, "3");
    QCOMPARE(number(wizard), QString());
    QVERIFY(!FindButton(&wizard, QStringLiteral("Next >"))->isEnabled());
    QTimer::singleShot(0, &wizard, [&wizard] {
        ClickButton(wizard.currentPage()->findChild<QProgressDialog*>(), QStringLiteral("Cancel"));
    });
    QCOMPARE(extract(wizard), QString());
    QTest::keyClick(length, Qt::Key_Return);
    QCOMPARE(wizard.currentPage(), filter);
    QCOMPARE(number(wizard), QStringLiteral("0"));
    type(length, "2");
    QCOMPARE(extract(wizard), QStringLiteral("2"));
    QTest::keyClick(length, Qt::Key_Return);
    QVERIFY(wizard.currentPage() != filter);
    wizard.back();
    // There and back again, with everything as it was.
    next(wizard);
    wizard.back();
    wizard.back();
    next(wizard);
    QCOMPARE(extract(wizard), QStringLiteral("2"));
    next(wizard);
    QCOMPARE(ToText(cuts), before);
    finish(wizard);
    QCOMPARE(wizard.result(), int(QDialog::Accepted));
    QCOMPARE(ToText(cuts), QStringLiteral("(0,4) L(4,6) (6,6) R(6,8) (8,10) R(10,12) (12,13)"));
}

void TestSearchWizards::fitsItsAttribute()
{
    const auto data = MakeDataSet("0 3e-9 -9e14\n1 5e-9 0\n2 4e-9 1");
    CutCollection cuts;
    MakeCuts(cuts, "3");
    ThresholdWizard wizard(data.get(), &cuts, CutSegment::SEGMENT_CUT);
    wizard.show();
    next(wizard);
    addParameter(wizard, "attribute >= value", "1");
    const auto* row = wizard.findChild<ThresholdParameterWidget*>();
    auto* tested = row->findChild<AttributeBox*>();
    const auto* plotted =
        FindField<AttributeBox>(wizard.currentPage(), QStringLiteral("Data Attribute: "));
    const std::vector<std::pair<int, const char*>> searches{{2, "-899999999999999.5"},
                                                            {1, "0.0000000035"}};
    for (const auto& [attribute, value] : searches) {
        tested->SetAttribute(attribute);
        type(row->findChild<QDoubleSpinBox*>(), value);
        QCOMPARE(extract(wizard), QStringLiteral("1"));
        QCOMPARE(plotted->GetAttribute(), attribute);
    }
}

void TestSearchWizards::rejectsMatches()
{
    const auto data = MakeColumn({9, 9, 0, 3, 3, 0, 9, 9, 0, 3, 3});
    CutCollection cuts;
    MakeCuts(cuts, "11");
    ThresholdWizard wizard(data.get(), &cuts, CutSegment::SEGMENT_CUT);
    wizard.show();
    next(wizard);
    addParameter(wizard, "attribute > value", "1");
    auto* plot = wizard.findChild<SelectionMultipleLinePlotWidget*>();
    // A second run starts anew, also with what was rejected after the first.
    for (int run = 0; run < 2; ++run) {
        QCOMPARE(extract(wizard), QStringLiteral("4"));
        ModalScript script;
        script.On<QMessageBox>([](QMessageBox* box) {
            QTest::mouseClick(box->button(QMessageBox::Yes), Qt::LeftButton);
        });
        // The upper half holds the lines at 9.
        DragMouse(*plot, QPoint(45, 2), QPoint(plot->width() - 5, plot->height() / 2));
        QCOMPARE(number(wizard), QStringLiteral("2"));
    }
    ClickButton(&wizard, QStringLiteral("Bring Back"));
    QCOMPARE(number(wizard), QStringLiteral("4"));
    QVERIFY(!FindButton(&wizard, QStringLiteral("Bring Back"))->isEnabled());
    ModalScript script;
    script.On<QMessageBox>(
        [](QMessageBox* box) { QTest::mouseClick(box->button(QMessageBox::Yes), Qt::LeftButton); });
    DragMouse(*plot, QPoint(45, 2), QPoint(plot->width() - 5, plot->height() / 2));
    next(wizard);
    finish(wizard);
    QCOMPARE(ToText(cuts), QStringLiteral("(0,3) R(3,4) (4,9) R(9,10) (10,11)"));
}

void TestSearchWizards::insertsWhatFollows()
{
    const auto data = MakeColumn(std::vector<double>(1000, 1.0));
    CutCollection cuts;
    MakeCuts(cuts, "100L 120L 400 500L 1000");
    LabelCollection labels;
    for (const char* name : {"Dive", "Rest"})
        labels.AddLabel(new BehaviorLabel(QLatin1String(name)));
    LabelSegment(*labels.GetLabel(0), cuts.GetSegment(0));
    LabelSegment(*labels.GetLabel(1), cuts.GetSegment(1));
    LabelSegment(*labels.GetLabel(1), cuts.GetSegment(3));
    const QString before = ToText(cuts);
    RuleAssociationWizard wizard(data.get(), &cuts, &labels, CutSegment::SEGMENT_CUT);
    wizard.show();
    next(wizard);
    QCOMPARE(extract(wizard), QStringLiteral("0"));
    addRuleLabel(wizard, "Dive");
    addRuleLabel(wizard, "");
    addRuleLabel(wizard, "Rest");
    auto* length = wizard.currentPage()->findChild<QSlider*>();
    QCOMPARE(length->maximum(), 1000);
    type(wizard.currentPage()->findChild<QSpinBox*>(), "300");
    QCOMPARE(length->value(), 300);
    QCOMPARE(extract(wizard), QStringLiteral("1"));
    length->setValue(200);
    QCOMPARE(extract(wizard), QStringLiteral("2"));
    next(wizard);
    type(boxOfMatch(wizard, 500), "750");
    wizard.back();
    next(wizard);
    // Behind its end, which stays at 700.
    QVERIFY(boxOfMatch(wizard, 750));
    QCOMPARE(ToText(cuts), before);
    finish(wizard);
    QCOMPARE(ToText(cuts), QStringLiteral("L(0,100) L(100,120) (120,120) R(120,320) (320,400) "
                                          "L(400,500) (500,700) R(700,750) (750,1000)"));
}

void TestSearchWizards::searchesNothing()
{
    const DataSet empty;
    CutCollection cuts;
    LabelCollection labels;
    for (DataSet* data : {static_cast<DataSet*>(nullptr), const_cast<DataSet*>(&empty)}) {
        ThresholdWizard threshold(data, &cuts, CutSegment::SEGMENT_CUT);
        threshold.show();
        next(threshold);
        addParameter(threshold, "value > attribute", "1");
        QCOMPARE(extract(threshold), QStringLiteral("0"));
        next(threshold);
        finish(threshold);
        RuleAssociationWizard rule(data, &cuts, &labels, CutSegment::SEGMENT_CUT);
        rule.show();
        next(rule);
        addRuleLabel(rule, "");
        QCOMPARE(extract(rule), QStringLiteral("0"));
        next(rule);
        finish(rule);
        QCOMPARE(cuts.GetSegmentCount(), 0);
    }
}

void TestSearchWizards::tellsWhatIsKeptOut()
{
    const auto data = MakeColumn(std::vector<double>(100, 1.0));
    CutCollection cuts;
    MakeCuts(cuts, "50L 80 100");
    QWizard wizard;
    auto* page = new ResizeWizardPage(data.get(), &cuts, CutSegment::SEGMENT_CUT);
    wizard.addPage(page);
    page->SetMatches({{{50, 60}}, {{75, 85}}});
    wizard.show();
    const auto* text = page->findChild<InsertionForecast*>()->findChild<QLabel*>();
    QCOMPARE(text->text(), QStringLiteral("2 can be inserted, 0 cross plain cuts, 0 cross labels"));
    type(boxOfMatch(wizard, 50), "49");
    page->findChild<QCheckBox*>()->click();
    QCOMPARE(text->text(), QStringLiteral("0 can be inserted, 1 cross plain cuts, 1 cross labels"));
    page->findChild<QCheckBox*>()->click();
    finish(wizard);
    QCOMPARE(ToText(cuts), QStringLiteral("L(0,50) (50,75) R(75,85) (85,100)"));
}

void TestSearchWizards::asksBeforeResultsGo()
{
    const auto data = MakeColumn(std::vector<double>(100, 1.0));
    CutCollection cuts;
    MakeCuts(cuts, "50 60R 100");
    ResizeWizardPage page(data.get(), &cuts, CutSegment::SEGMENT_RESULT);
    for (const auto answer : {QMessageBox::No, QMessageBox::Yes}) {
        ModalScript user;
        user.On<QMessageBox>([=](QMessageBox* box) { box->button(answer)->click(); });
        QCOMPARE(page.validatePage(), answer == QMessageBox::Yes);
        QCOMPARE(cuts.GetSegmentCount(), answer == QMessageBox::Yes ? 1 : 3);
    }
}

void TestSearchWizards::keepsEndsOutOfView()
{
    const auto data = MakeColumn(std::vector<double>(50000, 1.0));
    CutCollection cuts;
    MakeCuts(cuts, "50000");
    SearchMatches matches;
    for (int i = 0; i < 5000; ++i)
        matches.append(SearchMatch{{i * 10 + 2, i * 10 + 8}});
    QWizard wizard;
    auto* page = new ResizeWizardPage(data.get(), &cuts, CutSegment::SEGMENT_CUT);
    wizard.addPage(page);
    page->SetMatches(matches);
    wizard.resize(900, 600);
    wizard.show();
    QVERIFY(QTest::qWaitForWindowActive(&wizard));
    auto* bar = page->findChild<QAbstractScrollArea*>()->verticalScrollBar();
    // The wheel over a box is the list's until the user has chosen the box.
    QVERIFY(!takesWheel(boxOfMatch(wizard, 12)));
    type(boxOfMatch(wizard, 12), "12");
    QVERIFY(takesWheel(boxOfMatch(wizard, 12)));
    QVERIFY(boxOfMatch(wizard, 11));
    // Tab leads through all matches and takes the view along.
    for (int i = 0; i < 4 * 20; ++i)
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    QCOMPARE(qobject_cast<QSpinBox*>(QApplication::focusWidget())->value(), 212);
    bar->setValue(bar->maximum());
    type(boxOfMatch(wizard, 49992), "49995");
    bar->setValue(0);
    QVERIFY(boxOfMatch(wizard, 11));
    QVERIFY(wizard.findChildren<SegmentResizeWidget*>().size() < 20);
    finish(wizard);
    QCOMPARE(cuts.CountSegments(CutSegment::SEGMENT_RESULT), 5000);
    QVERIFY(ToText(cuts).startsWith(QLatin1String("(0,2) R(2,8) (8,11) R(11,18) (18,22) R(22,")));
    QVERIFY(ToText(cuts).endsWith(QLatin1String("R(49995,49998) (49998,50000)")));
}

QTEST_MAIN(TestSearchWizards)
#include "tst_searchwizards.moc"
