#include "attributematchdialog.h"
#include "collectionsdataobject.h"
#include "database.h"
#include "matchoverlayplot.h"
#include "modalscript.h"
#include "mousedrag.h"
#include "resultfilterpage.h"
#include "segmenttext.h"
#include "templatedetails.h"
#include "templatematcherpage.h"
#include "templatewizard.h"
#include "testdata.h"
#include "thresholdmap.h"
#include "thresholdmapdistribution.h"
#include <QAbstractButton>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QErrorMessage>
#include <QInputDialog>
#include <QLabel>
#include <QListWidget>
#include <QMessageBox>
#include <QSettings>
#include <QSpinBox>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QTemporaryDir>
#include <QtTest>

namespace
{

constexpr int rows = 200;
constexpr double stroke[] = {1, 1, 1, -1, -1, 1, -1};
constexpr int strokeLength = 7;

// Strokes of different strength, each from its row on.
std::unique_ptr<DataSet> makeStrokes()
{
    auto data = MakeColumn(std::vector<double>(rows, 0.0));
    const QMap<int, double> strokes{{20, 1.0}, {60, 0.9}, {100, 0.95}, {150, 0.6}};
    for (auto found = strokes.begin(); found != strokes.end(); ++found) {
        for (int j = 0; j < strokeLength; ++j)
            data->GetRow(found.key() + j)->SetValue(0, *found * stroke[j]);
    }
    data->ComputeRanges();
    return data;
}

void addSignal(PatternsDataObject& pattern, bool isFilled)
{
    auto* collection = new SignalTemplateCollectionDataObject(1.0);
    pattern.AddSignalCollection(collection);
    if (!isFilled)
        return;
    auto* signal = new SignalTemplateDataObject;
    signal->SetSignal(stroke, strokeLength);
    signal->setAttributeName(QStringLiteral("A"));
    signal->computeMean();
    signal->computeSd();
    collection->AddSignal(signal);
}

void chooseAlgorithm(ModalScript& user, const QString& name)
{
    user.On<QInputDialog>([=](QInputDialog* dialog) {
        QCOMPARE(dialog->textValue(), QStringLiteral("Normalized Correlation (Exact)"));
        QCOMPARE(dialog->comboBoxItems().indexOf(dialog->textValue()), 2);
        dialog->setTextValue(name);
        name.isEmpty() ? dialog->reject() : dialog->accept();
    });
}

void matchAttributes(ModalScript& user, bool isAccepted)
{
    user.On<AttributeMatchDialog>(
        [=](AttributeMatchDialog* dialog) { isAccepted ? dialog->accept() : dialog->reject(); });
}

void answerSearch(ModalScript& user)
{
    chooseAlgorithm(user, QStringLiteral("Correlation"));
    matchAttributes(user, true);
}

void setThreshold(const QWidget& page, int percent)
{
    page.findChild<QSpinBox*>()->setValue(percent);
}

QString statistics(const QWidget& page)
{
    for (const QLabel* label : page.findChildren<QLabel*>()) {
        if (label->text().startsWith(QStringLiteral("Statistics: ")))
            return label->text();
    }
    return QString();
}

QString found(int count)
{
    return QStringLiteral("Statistics: %1 matches found").arg(count);
}

QString textOf(const QWidget& page, const QString& end)
{
    for (const QLabel* label : page.findChildren<QLabel*>()) {
        if (label->text().endsWith(end))
            return label->text();
    }
    return QString();
}

void clickRow(const QWidget& page, const QString& text)
{
    // The page has only just been laid out.
    QCoreApplication::processEvents();
    for (auto* list : page.findChildren<QListWidget*>()) {
        for (QListWidgetItem* item : list->findItems(text, Qt::MatchExactly))
            QTest::mouseClick(list->viewport(), Qt::LeftButton, {},
                              list->visualItemRect(item).center());
    }
}

// A band over the mark of a step, a few pixels to both sides.
void dragOverStep(ResultMapWidget& map, int step)
{
    const int x = 40 + step * (map.width() - 40) / rows;
    DragMouse(map, {x - 4, 10}, {x + 4, 20});
}

} // namespace

class TestTemplateWizard : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void cleanup();
    void leadsFromPatternToSegments();
    void staysEmptyWhenNothingIsSearched_data();
    void staysEmptyWhenNothingIsSearched();
    void tellsWhatCannotBeSearched_data();
    void tellsWhatCannotBeSearched();
    void tellsWhatDoesNotFit();
    void drawsAFewOfManyMatches();
    void handsTheThresholdOn();
    void findsTheSameBehindALabel();

private:
    std::unique_ptr<QTemporaryDir> m_Home;
    std::unique_ptr<DataSet> m_Data;
    std::unique_ptr<CutCollection> m_Cuts;
    std::unique_ptr<PatternsDataObject> m_Pattern;
};

void TestTemplateWizard::init()
{
    m_Home = std::make_unique<QTemporaryDir>();
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, m_Home->path());
    QVERIFY(!InitializeDatabase().isValid());
    m_Data = makeStrokes();
    m_Cuts = std::make_unique<CutCollection>();
    m_Pattern = std::make_unique<PatternsDataObject>(1, QStringLiteral("stroke"));
    addSignal(*m_Pattern, true);
    QVERIFY(m_Pattern->InsertPattern(true) != -1);
}

void TestTemplateWizard::cleanup()
{
    QSqlDatabase::database(QLatin1String(QSqlDatabase::defaultConnection), false).close();
}

void TestTemplateWizard::leadsFromPatternToSegments()
{
    MakeCuts(*m_Cuts, "90 120L 200");
    const QString before = ToText(*m_Cuts);
    TemplateWizard wizard(m_Data.get(), m_Cuts.get(), CutSegment::SEGMENT_CUT);
    wizard.show();
    wizard.next();
    wizard.next();
    QCOMPARE(TakeUserErrors(), QStringList(QStringLiteral("Error: Error: No pattern selected")));
    clickRow(*wizard.currentPage(), QStringLiteral("Templates"));
    clickRow(*wizard.currentPage(), QStringLiteral("stroke"));
    ClickButton(wizard.currentPage(), QStringLiteral("Apply Pattern"));
    ModalScript user;
    answerSearch(user);
    wizard.next();
    QCOMPARE(wizard.currentId(), 3);
    QCOMPARE(wizard.size(), QSize(900, 600));
    QWidget& page = *wizard.currentPage();
    QCOMPARE(statistics(page), found(2));
    setThreshold(page, 100);
    QCOMPARE(statistics(page), found(1));
    setThreshold(page, 50);
    QCOMPARE(statistics(page), found(3));
    dragOverStep(*page.findChild<ThresholdMap*>(), 23);
    QCOMPARE(statistics(page), found(2));

    // What was rejected counts again after a new search.
    answerSearch(user);
    wizard.back();
    wizard.next();
    QCOMPARE(statistics(page), found(2));
    setThreshold(page, 50);
    dragOverStep(*page.findChild<ThresholdMapDistribution*>(), 63);
    QCOMPARE(statistics(page), found(2));
    // The first row of the weakest match is the only one of about 0.6.
    auto* overlay = page.findChild<MatchOverlayPlot*>();
    QCOMPARE(overlay->GetLineCount(), 3);
    const auto toY = [&](double value) {
        return int(overlay->height() - 9 - (overlay->height() - 18) * (value + 1) / 2);
    };
    user.On<QMessageBox>([](QMessageBox* box) { box->button(QMessageBox::Yes)->click(); });
    DragMouse(*overlay, {42, toY(0.8)}, {48, toY(0.4)});
    QCOMPARE(statistics(page), found(1));
    // One after the other, the last first.
    QCOMPARE(textOf(page, QStringLiteral(" rejected")), QStringLiteral("2 rejected"));
    for (const int matches : {2, 3}) {
        ClickButton(&page, QStringLiteral("Bring Back"));
        QCOMPARE(statistics(page), found(matches));
    }
    QVERIFY(!page.findChild<ThresholdMap*>()->GetRemovedSteps().contains(63));
    dragOverStep(*page.findChild<ThresholdMap*>(), 63);
    user.On<QMessageBox>([](QMessageBox* box) { box->button(QMessageBox::Yes)->click(); });
    DragMouse(*overlay, {42, toY(0.8)}, {48, toY(0.4)});
    QCOMPARE(statistics(page), found(1));
    // A rejected match stays rejected, whatever the threshold.
    setThreshold(page, 80);
    setThreshold(page, 50);
    QCOMPARE(statistics(page), found(1));
    page.findChild<QSpinBox*>()->setFocus();
    QTest::keyClick(page.findChild<QSpinBox*>(), Qt::Key_Return);
    QVERIFY(wizard.isVisible());

    QCOMPARE(ToText(*m_Cuts), before);
    wizard.button(QWizard::FinishButton)->click();
    QCOMPARE(wizard.result(), int(QDialog::Accepted));
    QCOMPARE(ToText(*m_Cuts), QStringLiteral("(0,20) R(20,26) (26,90) L(90,120) (120,200)"));
}

void TestTemplateWizard::staysEmptyWhenNothingIsSearched_data()
{
    QTest::addColumn<QString>("algorithm");
    QTest::newRow("no algorithm") << QString();
    QTest::newRow("no attributes") << QStringLiteral("Normalized Correlation");
}

void TestTemplateWizard::staysEmptyWhenNothingIsSearched()
{
    QFETCH(QString, algorithm);
    MakeCuts(*m_Cuts, "40R 200");
    const QString before = ToText(*m_Cuts);
    TemplateWizard wizard(m_Data.get(), m_Cuts.get(), CutSegment::SEGMENT_RESULT, m_Pattern.get());
    ModalScript user;
    const auto cancel = [&] {
        chooseAlgorithm(user, algorithm);
        if (!algorithm.isEmpty())
            matchAttributes(user, false);
    };
    cancel();
    wizard.show();
    QCOMPARE(wizard.pageIds(), QList<int>{3});
    QCOMPARE(TakeUserErrors(), QStringList());
    QCOMPARE(statistics(*wizard.currentPage()), QStringLiteral("Statistics: "));
    // There is nothing to finish with: the search is offered once more.
    cancel();
    wizard.button(QWizard::FinishButton)->click();
    QVERIFY(wizard.isVisible());
    answerSearch(user);
    wizard.button(QWizard::FinishButton)->click();
    const QWidget& page = *wizard.currentPage();
    QCOMPARE(statistics(page), found(1));
    QCOMPARE(textOf(page, QStringLiteral(" cross labels")),
             QStringLiteral("1 can be inserted, 0 cross plain cuts, 0 cross labels"));
    QCOMPARE(ToText(*m_Cuts), before);
    // With nothing to take their place, the results go only when the user agrees.
    dragOverStep(*page.findChild<ThresholdMap*>(), 23);
    user.On<QMessageBox>([](QMessageBox* box) { box->button(QMessageBox::No)->click(); });
    wizard.button(QWizard::FinishButton)->click();
    QVERIFY(wizard.isVisible());
    QCOMPARE(statistics(page), found(0));
    QCOMPARE(ToText(*m_Cuts), before);
    wizard.reject();
    QCOMPARE(ToText(*m_Cuts), before);
}

void TestTemplateWizard::tellsWhatCannotBeSearched_data()
{
    QTest::addColumn<QString>("statement");
    QTest::addColumn<QString>("error");
    QTest::newRow("deleted") << QStringLiteral("DELETE FROM pattern")
                             << QStringLiteral("Error: The pattern can't be read.");
    QTest::newRow("no signal") << QStringLiteral("DELETE FROM signal_template")
                               << QStringLiteral("Error: The pattern holds no signals.");
    QTest::newRow("no factor") << QStringLiteral("DELETE FROM signal_template_collection")
                               << QStringLiteral("Error: The pattern holds no signals.");
}

void TestTemplateWizard::tellsWhatCannotBeSearched()
{
    QFETCH(QString, statement);
    QFETCH(QString, error);
    QVERIFY(QSqlQuery().exec(statement));
    TemplateWizard wizard(m_Data.get(), m_Cuts.get(), CutSegment::SEGMENT_CUT, m_Pattern.get());
    const ModalScript nobody;
    wizard.show();
    // The box came before the wizard, and is the window that answers all the same.
    const auto* box = wizard.findChild<QErrorMessage*>();
    QTRY_COMPARE(QApplication::activeWindow(), box);
    QCOMPARE(TakeUserErrors(), QStringList(QStringLiteral("Error: ") + error));
}

void TestTemplateWizard::tellsWhatDoesNotFit()
{
    MakeCuts(*m_Cuts, "200");
    QVERIFY(QSqlQuery().exec(QStringLiteral("UPDATE signal_template SET att_name = 'Depth'")));
    PatternOrigin origin;
    origin.m_SamplingRate = 25;
    QVERIFY(StorePatternOrigin(m_Pattern->GetId(), origin));
    TemplateWizard wizard(m_Data.get(), m_Cuts.get(), CutSegment::SEGMENT_CUT);
    wizard.show();
    wizard.next();
    const QString missing = QStringLiteral("This recording has no attribute Depth.");
    const QString rate = QStringLiteral("at 25 Hz and this recording at 40 Hz");
    const QString details = wizard.currentPage()->findChild<TemplateDetails*>()->text();
    QVERIFY(details.contains(missing) && details.contains(rate));
    // The template that was stored last is the current one.
    ClickButton(wizard.currentPage(), QStringLiteral("Apply Pattern"));
    ModalScript user;
    chooseAlgorithm(user, QStringLiteral("Correlation"));
    user.On<AttributeMatchDialog>([=](AttributeMatchDialog* dialog) {
        QStringList texts;
        for (const QLabel* label : dialog->findChildren<QLabel*>())
            texts.append(label->text());
        QVERIFY(texts.contains(missing));
        QCOMPARE(texts.filter(rate).size(), 1);
        dialog->accept();
        QCOMPARE(TakeUserErrors().size(), 1);
        QVERIFY(dialog->isVisible());
        dialog->findChild<QComboBox*>()->setCurrentIndex(0);
        dialog->accept();
    });
    wizard.next();
    QCOMPARE(statistics(*wizard.currentPage()), found(3));
}

void TestTemplateWizard::drawsAFewOfManyMatches()
{
    std::vector<double> wave;
    for (int i = 0; i < 4000; ++i)
        wave.push_back(stroke[i % strokeLength]);
    m_Data = MakeColumn(wave);
    MakeCuts(*m_Cuts, "4000");
    TemplateWizard wizard(m_Data.get(), m_Cuts.get(), CutSegment::SEGMENT_CUT, m_Pattern.get());
    ModalScript user;
    answerSearch(user);
    wizard.show();
    const QWidget& page = *wizard.currentPage();
    QCOMPARE(statistics(page), found(4000 / strokeLength));
    auto* overlay = page.findChild<MatchOverlayPlot*>();
    QCOMPARE(overlay->GetLineCount(), 401);
    QCOMPARE(textOf(page, QStringLiteral(" drawn")), QStringLiteral("400 of 571 drawn"));
    // All have a value in the box, also those that are not drawn.
    QTest::mousePress(overlay, Qt::LeftButton, {}, {42, 2});
    const QPoint corner(overlay->width() - 2, overlay->height() - 2);
    MoveMouse(*overlay, corner, Qt::LeftButton);
    QCOMPARE(textOf(page, QStringLiteral(" rejected")), QStringLiteral("571 about to be rejected"));
    user.On<QMessageBox>([](QMessageBox* box) { box->button(QMessageBox::No)->click(); });
    QTest::mouseRelease(overlay, Qt::LeftButton, {}, corner);
    QCOMPARE(textOf(page, QStringLiteral(" rejected")), QString());
    QCOMPARE(statistics(page), found(4000 / strokeLength));
    // A rejection leaves the lines as invisible as they were.
    page.findChild<QDoubleSpinBox*>()->setValue(0.0);
    const QImage before = overlay->grab().toImage();
    DragMouse(*page.findChild<ThresholdMap*>(), {60, 10}, {90, 20});
    QVERIFY(statistics(page) != found(4000 / strokeLength));
    QCOMPARE(overlay->grab().toImage(), before);
}

void TestTemplateWizard::handsTheThresholdOn()
{
    MakeCuts(*m_Cuts, "200");
    const QList<int> ids{m_Pattern->GetId()};
    QWizard wizard;
    auto* results = new ResultFilterPage(m_Data.get(), m_Cuts.get(), CutSegment::SEGMENT_CUT, &ids);
    auto* matcher =
        new TemplateMatcherPage(m_Data.get(), m_Cuts.get(), CutSegment::SEGMENT_CUT, &ids, results);
    wizard.addPage(matcher);
    wizard.addPage(results);
    ModalScript user;
    answerSearch(user);
    wizard.show();
    setThreshold(*matcher, 92);
    QVERIFY(matcher->validatePage());
    QCOMPARE(results->findChild<QSpinBox*>()->value(), 92);
    QCOMPARE(statistics(*results), found(2));
    ClickButton(matcher, QStringLiteral("Load Signal"));
    QList<QSize> windows;
    for (const QWidget* window : QApplication::topLevelWidgets()) {
        if (window->parent() == matcher)
            windows.append(window->size());
    }
    QCOMPARE(windows, QList<QSize>{QSize(500, 300)});
}

// A first row that is left out is not the lowest confidence.
void TestTemplateWizard::findsTheSameBehindALabel()
{
    for (const char* cuts : {"200", "10L 200", "10R 200"}) {
        m_Cuts = std::make_unique<CutCollection>();
        MakeCuts(*m_Cuts, cuts);
        TemplateWizard wizard(m_Data.get(), m_Cuts.get(), CutSegment::SEGMENT_CUT, m_Pattern.get());
        ModalScript user;
        answerSearch(user);
        wizard.show();
        QCOMPARE(statistics(*wizard.currentPage()), found(3));
        setThreshold(*wizard.currentPage(), 92);
        QCOMPARE(statistics(*wizard.currentPage()), found(2));
    }
}

QTEST_MAIN(TestTemplateWizard)
#include "tst_templatewizard.moc"
