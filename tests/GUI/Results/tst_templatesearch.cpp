#include "attributematchdialog.h"
#include "database.h"
#include "fieldlookup.h"
#include "modalscript.h"
#include "patternsdataobject.h"
#include "resultsearchoptiondialog.h"
#include "resultwidget.h"
#include "ruleassociationwizard.h"
#include "segmenttext.h"
#include "templatedialog.h"
#include "templatewizard.h"
#include "testdata.h"
#include "thresholdwizard.h"
#include <QAbstractButton>
#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QInputDialog>
#include <QLineEdit>
#include <QListWidget>
#include <QMessageBox>
#include <QSettings>
#include <QSqlDatabase>
#include <QTableView>
#include <QTemporaryDir>
#include <QtTest>

namespace
{

constexpr double stroke[] = {1, 1, 1, -1, -1, 1, -1};
constexpr int strokeLength = 7;

std::unique_ptr<DataSet> makeStrokes()
{
    std::vector<double> values(200, 0.0);
    for (const int from : {20, 60, 100})
        std::copy(stroke, stroke + strokeLength, values.begin() + from);
    return MakeColumn(values);
}

void finish(QWizard* wizard)
{
    wizard->button(QWizard::FinishButton)->click();
}

// Empty to cancel.
void answerOption(ModalScript& user, const QString& option)
{
    user.On<ResultSearchOptionDialog>([=](ResultSearchOptionDialog* dialog) {
        option.isEmpty() ? dialog->reject() : ClickButton(dialog, option);
    });
}

void answerSearch(ModalScript& user)
{
    user.On<QInputDialog>([](QInputDialog* dialog) { dialog->accept(); });
    user.On<AttributeMatchDialog>([](AttributeMatchDialog* dialog) { dialog->accept(); });
}

void choosePattern(TemplateWizard* wizard)
{
    wizard->next();
    for (const char* text : {"Templates", "stroke"}) {
        for (auto* list : wizard->currentPage()->findChildren<QListWidget*>()) {
            for (QListWidgetItem* item : list->findItems(QLatin1String(text), Qt::MatchExactly))
                list->setCurrentItem(item);
        }
    }
    ClickButton(wizard->currentPage(), QStringLiteral("Apply Pattern"));
    wizard->next();
    finish(wizard);
}

void findHighRows(ThresholdWizard* wizard)
{
    wizard->next();
    ClickButton(wizard, QStringLiteral("Add Parameter"));
    FindField<QComboBox>(wizard, QStringLiteral("Parameter"))->setCurrentIndex(2);
    wizard->findChild<QDoubleSpinBox*>()->setValue(0.5);
    ClickButton(wizard, QStringLiteral("Extract Results"));
    wizard->next();
    finish(wizard);
}

void findWhatFollows(RuleAssociationWizard* wizard)
{
    wizard->next();
    ClickButton(wizard, QStringLiteral("Add New"));
    FindField<QComboBox>(wizard, QStringLiteral("Label"))->setCurrentText(QStringLiteral("Fly"));
    wizard->findChild<QSpinBox*>()->setValue(10);
    ClickButton(wizard, QStringLiteral("Extract Results"));
    wizard->next();
    finish(wizard);
}

// Stores a template of the rows in question, as they are.
void describeTemplate(ModalScript& user)
{
    user.On<TemplateDialog>([](TemplateDialog* dialog) {
        FindField<QLineEdit>(dialog, QStringLiteral("Name "))->setText(QStringLiteral("stroke"));
        FindField<QCheckBox>(dialog, QStringLiteral("Resample "))->setChecked(false);
        FindButton(dialog, QStringLiteral("A"))->click();
        ClickButton(dialog, QStringLiteral("Save"));
    });
    user.On<QMessageBox>([](QMessageBox* box) { box->accept(); });
}

} // namespace

class TestTemplateSearch : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void cleanup();
    void findsCandidates_data();
    void findsCandidates();
    void cancels_data() { findsCandidates_data(); }
    void cancels();
    void startsFromARow();
    void buttonsNeedData();

private:
    void runMenuEntry(const char* text);
    int rowCount() const { return m_Results->findChild<QTableView*>()->model()->rowCount(); }

    std::unique_ptr<QTemporaryDir> m_Home;
    std::unique_ptr<DataSet> m_Data;
    std::unique_ptr<CutCollection> m_Cuts;
    std::unique_ptr<LabelCollection> m_Labels;
    std::unique_ptr<ResultWidget> m_Results;
};

void TestTemplateSearch::init()
{
    m_Home = std::make_unique<QTemporaryDir>();
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, m_Home->path());
    QVERIFY(!InitializeDatabase().isValid());
    m_Results = std::make_unique<ResultWidget>();
    m_Data = makeStrokes();
    m_Cuts = std::make_unique<CutCollection>();
    MakeCuts(*m_Cuts, "20 27R 90 120L 200");
    m_Labels = std::make_unique<LabelCollection>();
    m_Labels->AddLabel(new BehaviorLabel(QStringLiteral("Fly"), Qt::red));
    LabelSegment(*m_Labels->GetLabel(0), m_Cuts->GetSegment(3));
    m_Results->SetDataSet(m_Data.get());
    m_Results->SetCutCollection(m_Cuts.get());
    m_Results->SetLabelCollection(m_Labels.get());
    m_Results->Rebuild();
    m_Results->resize(500, 450);
    m_Results->show();
    QVERIFY(QTest::qWaitForWindowActive(m_Results.get()));
}

void TestTemplateSearch::cleanup()
{
    QCOMPARE(TakeUserErrors(), QStringList());
    QSqlDatabase::database(QLatin1String(QSqlDatabase::defaultConnection), false).close();
}

void TestTemplateSearch::runMenuEntry(const char* text)
{
    auto* table = m_Results->findChild<QTableView*>();
    table->selectRow(0);
    emit table->customContextMenuRequested(table->visualRect(table->model()->index(0, 1)).center());
    ChooseFromMenu(QLatin1String(text));
}

void TestTemplateSearch::findsCandidates_data()
{
    QTest::addColumn<QString>("button");
    QTest::addColumn<QString>("option");
    QTest::addColumn<QString>("expected");
    QTest::newRow("template") << "Template Search"
                              << "Search Unlabeled Data"
                              << "(0,20) R(20,27) (27,60) R(60,66) (66,90) L(90,120) (120,200)";
    QTest::newRow("threshold") << "Threshold"
                               << "Search Unlabeled Data"
                               << "(0,20) R(20,27) (27,60) R(60,62) (62,90) L(90,120) (120,200)";
    QTest::newRow("rule") << "Rule Association"
                          << "Search Unlabeled Data"
                          << "(0,20) R(20,27) (27,90) L(90,120) (120,120) R(120,130) (130,200)";
    // Of the result that there was, a part stays, or nothing.
    QTest::newRow("refined by template") << "Template Search"
                                         << "Refine Results"
                                         << "(0,20) R(20,26) (26,90) L(90,120) (120,200)";
    QTest::newRow("refined by threshold") << "Threshold"
                                          << "Refine Results"
                                          << "(0,20) R(20,22) (22,90) L(90,120) (120,200)";
    QTest::newRow("refined by rule") << "Rule Association"
                                     << "Refine Results"
                                     << "(0,90) L(90,120) (120,200)";
}

void TestTemplateSearch::findsCandidates()
{
    QFETCH(QString, button);
    QFETCH(QString, option);
    QFETCH(QString, expected);
    ModalScript user;
    describeTemplate(user);
    runMenuEntry("Save Template");
    QSignalSpy updated(m_Results.get(), &ResultWidget::SegmentsUpdated);
    answerOption(user, option);
    if (button == QLatin1String("Template Search")) {
        user.On<TemplateWizard>(choosePattern);
        answerSearch(user);
    } else if (button == QLatin1String("Threshold")) {
        user.On<ThresholdWizard>(findHighRows);
    } else {
        user.On<RuleAssociationWizard>(findWhatFollows);
        // Nothing follows the result that there was.
        if (option == QLatin1String("Refine Results"))
            user.On<QMessageBox>([](QMessageBox* box) { box->button(QMessageBox::Yes)->click(); });
    }
    ClickButton(m_Results.get(), button);
    QCOMPARE(ToText(*m_Cuts), expected);
    QCOMPARE(rowCount(), expected.count(QLatin1Char('R')));
    QCOMPARE(updated.size(), 1);
}

void TestTemplateSearch::cancels()
{
    QFETCH(QString, button);
    QFETCH(QString, option);
    const QString before = ToText(*m_Cuts);
    QSignalSpy updated(m_Results.get(), &ResultWidget::SegmentsUpdated);
    ModalScript user;
    answerOption(user, QString());
    ClickButton(m_Results.get(), button);
    answerOption(user, option);
    user.On<QWizard>([](QWizard* wizard) { wizard->reject(); });
    ClickButton(m_Results.get(), button);
    QCOMPARE(ToText(*m_Cuts), before);
    QCOMPARE(rowCount(), 1);
    QCOMPARE(updated.size(), 0);
}

void TestTemplateSearch::startsFromARow()
{
    QSignalSpy updated(m_Results.get(), &ResultWidget::SegmentsUpdated);
    const QString before = ToText(*m_Cuts);
    ModalScript user;
    user.On<TemplateDialog>([](TemplateDialog* dialog) { dialog->reject(); });
    runMenuEntry("Search Template");
    describeTemplate(user);
    user.On<QInputDialog>([](QInputDialog* dialog) { dialog->reject(); });
    user.On<TemplateWizard>([](TemplateWizard* wizard) { wizard->reject(); });
    runMenuEntry("Search Template");
    QCOMPARE(ToText(*m_Cuts), before);
    QCOMPARE(updated.size(), 0);

    describeTemplate(user);
    answerSearch(user);
    user.On<TemplateWizard>(finish);
    runMenuEntry("Search Template");
    QCOMPARE(ToText(*m_Cuts),
             QStringLiteral("(0,20) R(20,27) (27,60) R(60,66) (66,90) L(90,120) (120,200)"));
    QCOMPARE(rowCount(), 2);
    // The graph has to paint them, too.
    QCOMPARE(updated.size(), 1);
    const std::unique_ptr<PatternsDataObject> stored(PatternsDataObject::GetPattern(1, true));
    QCOMPARE(stored->GetSignalCollections().first()->GetSignals().first()->GetValues(),
             std::vector<double>(stroke, stroke + strokeLength));
}

void TestTemplateSearch::buttonsNeedData()
{
    const auto areEnabled = [this] {
        int enabled = 0;
        for (const char* text : {"Template Search", "Threshold", "Rule Association"})
            enabled += FindButton(m_Results.get(), QLatin1String(text))->isEnabled();
        return enabled;
    };
    QCOMPARE(areEnabled(), 3);
    m_Results->SetCutCollection(nullptr);
    m_Results->SetDataSet(nullptr);
    QCOMPARE(areEnabled(), 0);
    const ModalScript nobody;
    m_Results->openTemplateSearch();
    m_Results->openThresholdSearch();
    m_Results->openRuleAssociationSearch();
}

QTEST_MAIN(TestTemplateSearch)
#include "tst_templatesearch.moc"
