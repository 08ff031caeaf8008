#include "cutsegment.h"
#include "database.h"
#include "databasecontrolpanel.h"
#include "fieldlookup.h"
#include "modalscript.h"
#include "oldlineplotwidget.h"
#include "signalresamplingform.h"
#include "templatedetails.h"
#include "templatedialog.h"
#include "testdata.h"
#include "viewpatternform.h"
#include <QCheckBox>
#include <QInputDialog>
#include <QLineEdit>
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

const QString otherConnection = QStringLiteral("other");

std::unique_ptr<DataSet> threeColumns()
{
    QByteArray text;
    for (int row = 0; row < 4000; ++row)
        text +=
            QByteArray::number(row) + (row < 9 ? " 1 " : " nan ") + QByteArray::number(-row) + '\n';
    return MakeDataSet(text.constData(),
                       {QStringLiteral("Acc_X"), QStringLiteral("a & b"), QStringLiteral("Depth")});
}

// As another program reads the file.
QStringList ask(const char* question)
{
    QSqlQuery query{QSqlDatabase::database(otherConnection)};
    query.exec(QLatin1String(question));
    QStringList answers;
    while (query.next())
        answers.append(query.value(0).toString());
    return answers;
}

bool run(const QString& connection, const char* statement)
{
    return QSqlQuery(QSqlDatabase::database(connection)).exec(QLatin1String(statement));
}

// Rows of the pattern, signal collection and signal tables.
QString countRows()
{
    return ask("SELECT (SELECT count(*) FROM pattern) || ' ' || (SELECT count(*) FROM "
               "signal_template_collection) || ' ' || (SELECT count(*) FROM signal_template)")
        .value(0);
}

void expectMessage(ModalScript& script, const char* title, const char* text)
{
    script.On<QMessageBox>([=](QMessageBox* box) {
        QCOMPARE(box->windowTitle(), QLatin1String(title));
        QCOMPARE(box->text(), QLatin1String(text));
        box->accept();
    });
}

void answer(ModalScript& script, const char* question, QMessageBox::StandardButton button)
{
    script.On<QMessageBox>([=](QMessageBox* box) {
        QCOMPARE(box->text(), QString::fromUtf8(question));
        box->button(button)->click();
    });
}

// Adds with Enter, as a user who knows the keyboard.
void addFactors(SignalResamplingForm* form, const char* up, const char* down)
{
    const auto field = [form](const char* label) {
        return FindField<QLineEdit>(form, QLatin1String(label));
    };
    field("Up Factor: ")->setText(QLatin1String(up));
    field("Down Factor: ")->setText(QLatin1String(down));
    QTest::keyClick(field("Down Factor: "), Qt::Key_Return);
}

QListWidget* listOf(const QWidget* widget, const char* caption)
{
    return FindField<QListWidget>(widget, QLatin1String(caption));
}

QStringList textsOf(const QListWidget* list)
{
    QStringList texts;
    for (int i = 0; i < list->count(); ++i)
        texts.append(list->item(i)->text());
    return texts;
}

// The buttons below a list act on its current row.
void clickBelow(const QListWidget* list, const char* button)
{
    ClickButton(list->parentWidget(), QLatin1String(button));
}

// Stores a pattern of three rows, with signals of two attributes at factors 2 and 0.5.
void storePattern(const char* name)
{
    const auto data = threeColumns();
    PatternRequest request;
    request.m_CollectionId = 1;
    request.m_Name = QString::fromUtf8(name);
    request.m_To = 3;
    request.m_Attributes = {0, 2};
    request.m_Factors = {{2, 1}, {1, 2}};
    QVERIFY(MakePattern(data.get(), request)->InsertPattern(true) > 0);
}

} // namespace

class TestTemplateDialogs : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void cleanup();
    void storesATemplate();
    void refusesInput();
    void refusesFactors();
    void losesNothingWhenStoringFails_data();
    void losesNothingWhenStoringFails();
    void tendsCollections();
    void tendsPatterns();
    void survivesOthers();
    void copiesByFile();

private:
    std::unique_ptr<QTemporaryDir> m_Home;
};

void TestTemplateDialogs::init()
{
    m_Home = std::make_unique<QTemporaryDir>();
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, m_Home->path());
    QVERIFY(!InitializeDatabase().isValid());
    QSqlDatabase database = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), otherConnection);
    database.setDatabaseName(m_Home->filePath(QStringLiteral("Skerrymoor/pattern_db.sqlite")));
    QVERIFY(database.open());
}

void TestTemplateDialogs::cleanup()
{
    QCOMPARE(TakeUserErrors(), QStringList());
    QSqlDatabase::removeDatabase(otherConnection);
    QSqlDatabase::database().close();
}

void TestTemplateDialogs::storesATemplate()
{
    const auto data = threeColumns();
    CutSegment segment(1, 4);
    TemplateDialog dialog(data.get(), &segment);
    dialog.show();
    auto* window = FindField<QSpinBox>(&dialog, QStringLiteral("Window Size "));
    QVERIFY(!window->isEnabled());
    auto* smooth = FindField<QCheckBox>(&dialog, QStringLiteral("Smooth "));
    auto* centred = FindField<QCheckBox>(&dialog, QStringLiteral("Smooth (centred)"));
    smooth->click();
    centred->click();
    QVERIFY(window->isEnabled() && !smooth->isChecked());
    smooth->click();
    QVERIFY(window->isEnabled() && !centred->isChecked());
    FindButton(&dialog, QStringLiteral("Depth"))->click();
    FindButton(&dialog, QStringLiteral("Acc_X"))->click();
    ModalScript script;
    script.On<SignalResamplingForm>([](SignalResamplingForm* form) {
        addFactors(form, " 1 ", "2");
        ClickButton(form, QStringLiteral("Done"));
    });
    expectMessage(script, "Pattern Added", "Pattern succesfully uploaded to database");
    auto* name = FindField<QLineEdit>(&dialog, QStringLiteral("Name "));
    name->setText(QStringLiteral(" Dive's \"100%\" \u00e4\u00f6 "));
    QTest::keyClick(name, Qt::Key_Return);
    QCOMPARE(dialog.result(), int(QDialog::Accepted));

    QCOMPARE(ask("SELECT collec_id || name || desc FROM pattern"),
             QStringList(QStringLiteral("1Dive's \"100%\" \u00e4\u00f6")));
    QCOMPARE(ask("SELECT frequency_factor FROM signal_template_collection"),
             QStringList({QStringLiteral("1"), QStringLiteral("0.5")}));
    // Too short to be changed by smoothing. -1, -2, -3 and -1, -3 in IEEE 754, big end first.
    QCOMPARE(ask("SELECT signal_length || hex(signal) FROM signal_template WHERE att_name='Depth'"),
             QStringList({QStringLiteral("3BFF0000000000000C000000000000000C008000000000000"),
                          QStringLiteral("2BFF0000000000000C008000000000000")}));
    QCOMPARE(ask("SELECT DISTINCT att_name FROM signal_template").value(0),
             QStringLiteral("Acc_X"));
    const auto pattern = dialog.TakePattern();
    QCOMPARE(pattern->GetSignalCollections().size(), 2);
    const std::unique_ptr<PatternsDataObject> read(
        PatternsDataObject::GetPattern(pattern->GetId(), true));
    const auto* slow = read->GetSignalCollections().first();
    QCOMPARE(slow->GetFrequencyFactor(), 0.5);
    QCOMPARE(slow->GetSignals()[1]->GetValues(), std::vector<double>({-1, -3}));
    QCOMPARE(slow->GetSignals()[1]->GetMean(), -2.0);
    QCOMPARE(slow->GetSignals()[1]->GetSd(), 1.0);
}

void TestTemplateDialogs::refusesInput()
{
    const auto data = threeColumns();
    for (const int to : {2, 4001}) {
        CutSegment segment(2, to);
        TemplateDialog dialog(data.get(), &segment);
        dialog.show();
        FindField<QCheckBox>(&dialog, QStringLiteral("Resample "))->click();
        FindField<QLineEdit>(&dialog, QStringLiteral("Name "))->setText(QStringLiteral("  "));
        ClickButton(&dialog, QStringLiteral("Save"));
        FindField<QLineEdit>(&dialog, QStringLiteral("Name "))->setText(QStringLiteral("Dive"));
        ClickButton(&dialog, QStringLiteral("Save"));
        FindButton(&dialog, QStringLiteral("Depth"))->click();
        ClickButton(&dialog, QStringLiteral("Save"));
        QStringList errors = TakeUserErrors();
        errors.sort();
        QCOMPARE(errors.join(QLatin1Char('\n')),
                 QStringLiteral("Error: Error: No data attributes selected.\n"
                                "Error: Error: No name entered.\n"
                                "Error: Error: The segment has no rows."));
        QVERIFY(dialog.isVisible());
    }
    for (const int from : {0, 9}) {
        CutSegment segment(from, 12);
        TemplateDialog dialog(data.get(), &segment);
        dialog.show();
        FindField<QLineEdit>(&dialog, QStringLiteral("Name "))->setText(QStringLiteral("Dive"));
        FindButton(&dialog, QStringLiteral("a  b"))->click();
        ClickButton(&dialog, QStringLiteral("Save"));
        QCOMPARE(TakeUserErrors(), QStringList(QStringLiteral(
                                       "Error: Error: a & b has missing values in the template.")));
    }
    QCOMPARE(countRows(), QStringLiteral("0 0 0"));
}

void TestTemplateDialogs::refusesFactors()
{
    const char* const refused[][2] = {{"2", "0"},  {"two", "1"}, {"", "1"},
                                      {"1", "-1"}, {"1.5", "1"}, {"1001", "1"}};
    SignalResamplingForm form;
    form.show();
    QVERIFY(QTest::qWaitForWindowActive(&form));
    addFactors(&form, "1", "2");
    auto* list = form.findChild<QListWidget*>();
    list->setCurrentRow(0);
    list->setFocus();
    QTest::keyClick(list, Qt::Key_Delete);
    QCOMPARE(form.GetFactors(), (QList<QPair<int, int>>{{1, 2}}));
    QTest::keyClick(list, Qt::Key_Delete);
    ClickButton(&form, QStringLiteral("Done"));
    QCOMPARE(TakeUserErrors(), QStringList(QStringLiteral("Error: Error: No factors entered.")));
    QVERIFY(form.isVisible());
    addFactors(&form, "1000", "1000");
    for (const auto& [up, down] : refused) {
        addFactors(&form, up, down);
        const QString error =
            QStringLiteral("Error: Error: Factors are whole numbers from 1 to 1000.");
        QCOMPARE(TakeUserErrors(), QStringList(error));
        QCOMPARE(form.GetFactors(), (QList<QPair<int, int>>{{1000, 1000}}));
    }
}

void TestTemplateDialogs::losesNothingWhenStoringFails_data()
{
    QTest::addColumn<QString>("connection");
    QTest::addColumn<QByteArray>("hinder");
    QTest::addColumn<QByteArray>("release");
    QTest::addColumn<QString>("reason");
    const QString ours = QLatin1String(QSqlDatabase::defaultConnection);
    QTest::newRow("locked") << otherConnection << QByteArray("BEGIN IMMEDIATE")
                            << QByteArray("COMMIT") << "database is locked";
    QTest::newRow("read only") << ours << QByteArray("PRAGMA query_only = ON")
                               << QByteArray("PRAGMA query_only = OFF")
                               << "attempt to write a readonly database";
    // The pattern's own rows still fit.
    QTest::newRow("full") << ours << QByteArray("PRAGMA max_page_count = 1")
                          << QByteArray("PRAGMA max_page_count = 10000")
                          << "database or disk is full";
}

void TestTemplateDialogs::losesNothingWhenStoringFails()
{
    QFETCH(QString, connection);
    QFETCH(QByteArray, hinder);
    QFETCH(QByteArray, release);
    QFETCH(QString, reason);
    storePattern("Mine");
    const auto data = threeColumns();
    CutSegment segment(0, 4000);
    TemplateDialog dialog(data.get(), &segment);
    dialog.show();
    FindField<QCheckBox>(&dialog, QStringLiteral("Resample "))->click();
    FindField<QLineEdit>(&dialog, QStringLiteral("Name "))->setText(QStringLiteral("Dive"));
    FindButton(&dialog, QStringLiteral("Depth"))->click();
    QVERIFY(run(connection, hinder));
    ClickButton(&dialog, QStringLiteral("Save"));
    QCOMPARE(
        TakeUserErrors(),
        QStringList(QStringLiteral("Error: Error: The template was not stored. (%1)").arg(reason)));
    QCOMPARE(dialog.GetPattern(), nullptr);
    if (!reason.endsWith(QStringLiteral("full"))) {
        DatabaseControlPanel panel;
        panel.show();
        listOf(&panel, "Collections")->setCurrentRow(0);
        ModalScript script;
        answer(script, "Delete the collection \"Templates\" and all its patterns?",
               QMessageBox::Yes);
        clickBelow(listOf(&panel, "Collections"), "Delete");
        QCOMPARE(
            TakeUserErrors(),
            QStringList(QStringLiteral("Error: Error: Nothing was deleted. (%1)").arg(reason)));
        QCOMPARE(textsOf(listOf(&panel, "Patterns")), QStringList(QStringLiteral("Mine")));
    }
    QVERIFY(run(connection, release));
    QCOMPARE(countRows(), QStringLiteral("1 2 4"));
    ModalScript script;
    expectMessage(script, "Pattern Added", "Pattern succesfully uploaded to database");
    ClickButton(&dialog, QStringLiteral("Save"));
    QCOMPARE(countRows(), QStringLiteral("2 3 5"));
}

void TestTemplateDialogs::tendsCollections()
{
    storePattern("Mine");
    DatabaseControlPanel panel;
    panel.show();
    const auto* list = listOf(&panel, "Collections");
    ModalScript script;
    script.Then([](QDialog* form) {
        QCOMPARE(form->windowTitle(), QStringLiteral("Add Collection"));
        auto* name = FindField<QLineEdit>(form, QStringLiteral("Name:"));
        QTest::keyClick(name, Qt::Key_Return);
        QCOMPARE(TakeUserErrors(), QStringList(QStringLiteral("Error: Error: No name entered")));
        QTest::keyClicks(name, QStringLiteral("It's <b>\"new\""));
        QTest::keyClick(name, Qt::Key_Return);
    });
    expectMessage(script, "Collection Added", "Collection succesfully added");
    clickBelow(list, "Add");
    QCOMPARE(textsOf(list),
             QStringList({QStringLiteral("Templates"), QStringLiteral("It's <b>\"new\"")}));
    QCOMPARE(list->currentRow(), 1);
    script.Then([](QDialog* form) {
        QCOMPARE(form->windowTitle(), QStringLiteral("Edit Collection"));
        // The name is marked: typing replaces it.
        QTest::keyClicks(FindField<QLineEdit>(form, QStringLiteral("Name:")),
                         QStringLiteral("Old"));
        ClickButton(form, QStringLiteral("Save"));
    });
    expectMessage(script, "Collection Updated", "Collection succesfully updated");
    listOf(&panel, "Collections")->setCurrentRow(0);
    clickBelow(list, "Edit");
    QCOMPARE(ask("SELECT name || '|' || desc FROM pattern_collection").value(0),
             QStringLiteral("Old|Collection of templates"));
    QCOMPARE(textsOf(listOf(&panel, "Patterns")), QStringList(QStringLiteral("Mine")));
    const char* question = "Delete the collection \"Old\" and all its patterns?";
    answer(script, question, QMessageBox::No);
    clickBelow(list, "Delete");
    QCOMPARE(countRows(), QStringLiteral("1 2 4"));
    answer(script, question, QMessageBox::Yes);
    expectMessage(script, "Collection Deleted", "Collection succesfully deleted");
    clickBelow(list, "Delete");
    QCOMPARE(textsOf(list), QStringList(QStringLiteral("It's <b>\"new\"")));
    QCOMPARE(textsOf(listOf(&panel, "Patterns")), QStringList());
    QCOMPARE(countRows(), QStringLiteral("0 0 0"));
}

void TestTemplateDialogs::tendsPatterns()
{
    storePattern("Mine");
    storePattern("Mine");
    DatabaseControlPanel panel;
    panel.show();
    listOf(&panel, "Collections")->setCurrentRow(0);
    auto* patterns = listOf(&panel, "Patterns");
    patterns->setCurrentRow(1);
    ModalScript script;
    script.On<ViewPatternForm>([&script](ViewPatternForm* form) {
        auto* templates = listOf(form, "Signal Collections");
        auto* found = listOf(form, "Signals");
        QCOMPARE(textsOf(templates), QStringList({QStringLiteral("0.5"), QStringLiteral("2")}));
        templates->setCurrentRow(0);
        // Enter activates the row and leaves the form open.
        QTest::keyClick(templates, Qt::Key_Return);
        QVERIFY(form->isVisible());
        found->setCurrentRow(1);
        clickBelow(found, "View Signal");
        const auto* plot = form->findChild<OldLinePlotWidget*>();
        QVERIFY(plot->isWindow() && plot->isVisible());
        QCOMPARE(plot->windowTitle(), QStringLiteral("Depth"));
        answer(script, "Delete the signal \"Depth\"?", QMessageBox::Yes);
        expectMessage(script, "Signal Template Deleted", "Signal template succesfully deleted");
        clickBelow(found, "Delete");
        QCOMPARE(textsOf(found), QStringList(QStringLiteral("Acc_X")));
        QCOMPARE(countRows(), QStringLiteral("2 4 7"));
        answer(script, "Delete the signal collection \"2\" and all its signals?", QMessageBox::Yes);
        expectMessage(script, "Signal Collection Deleted", "Signal Collection succesfully deleted");
        templates->setCurrentRow(1);
        clickBelow(templates, "Delete");
        QCOMPARE(textsOf(found), QStringList());
        ClickButton(form, QStringLiteral("Save"));
    });
    clickBelow(patterns, "View");
    QCOMPARE(countRows(), QStringLiteral("2 3 5"));
    // The same one is still current, although both have one name.
    for (const char* name : {"  ", " Yours "}) {
        script.On<QInputDialog>([=](QInputDialog* dialog) {
            QCOMPARE(dialog->textValue(), QStringLiteral("Mine"));
            dialog->setTextValue(QLatin1String(name));
            dialog->accept();
        });
        clickBelow(patterns, "Rename");
    }
    QCOMPARE(TakeUserErrors(), QStringList(QStringLiteral("Error: Error: No name entered")));
    QCOMPARE(ask("SELECT name FROM pattern"),
             QStringList({QStringLiteral("Mine"), QStringLiteral("Yours")}));
    answer(script, "Delete the pattern \"Yours\" and all its signals?", QMessageBox::Yes);
    expectMessage(script, "Pattern Deleted", "Pattern succesfully deleted");
    clickBelow(patterns, "Delete");
    QCOMPARE(ask("SELECT id FROM pattern"), QStringList(QStringLiteral("1")));
    QCOMPARE(countRows(), QStringLiteral("1 2 4"));
    QVERIFY(!FindButton(patterns->parentWidget(), QStringLiteral("View"))->isEnabled());
}

void TestTemplateDialogs::survivesOthers()
{
    storePattern("Mine");
    DatabaseControlPanel panel;
    panel.show();
    listOf(&panel, "Collections")->setCurrentRow(0);
    auto* patterns = listOf(&panel, "Patterns");
    patterns->setCurrentRow(0);
    ModalScript script;
    // While this form is open, another program deletes what it shows.
    script.Then([](QDialog* form) {
        QVERIFY(run(otherConnection, "DELETE FROM pattern_collection"));
        ClickButton(form, QStringLiteral("Save"));
        QCOMPARE(TakeUserErrors(),
                 QStringList(QStringLiteral("Error: Error: The collection was not stored.")));
        form->reject();
    });
    clickBelow(listOf(&panel, "Collections"), "Edit");
    // Its foreign keys are off, so the pattern is still there without a collection.
    QVERIFY(run(otherConnection, "DELETE FROM pattern"));
    clickBelow(patterns, "View");
    QCOMPARE(TakeUserErrors(),
             QStringList(QStringLiteral("Error: Error: The pattern can't be read.")));

    QVERIFY(run(otherConnection, "BEGIN EXCLUSIVE"));
    panel.populateListWidget();
    QCOMPARE(TakeUserErrors(),
             QStringList(QStringLiteral(
                 "Error: Error: The collections can't be read. (database is locked)")));
    QCOMPARE(textsOf(listOf(&panel, "Collections")), QStringList(QStringLiteral("Templates")));
}

void TestTemplateDialogs::copiesByFile()
{
    storePattern("Mine");
    storePattern("Yours");
    DatabaseControlPanel panel;
    panel.show();
    auto* collections = listOf(&panel, "Collections");
    auto* patterns = listOf(&panel, "Patterns");
    // What was stored last is shown at once, with all that is known of it.
    QCOMPARE(patterns->currentItem()->text(), QStringLiteral("Yours"));
    QCOMPARE(panel.findChild<TemplateDetails*>()->text(),
             QStringLiteral("Attributes: Acc_X, Depth<br>Sampling rate: 40 Hz<br>"
                            "Recording: unknown<br>Rows: 0 to 3"));
    ModalScript script;
    script.PickFile(m_Home->filePath(QStringLiteral("one.json")));
    clickBelow(patterns, "Export");
    script.PickFile(m_Home->filePath(QStringLiteral("all")));
    clickBelow(collections, "Export");
    script.PickFile(m_Home->filePath(QStringLiteral("one.json")));
    patterns->setCurrentRow(0);
    clickBelow(collections, "Import");
    QCOMPARE(patterns->currentRow(), 2);
    QCOMPARE(patterns->currentItem()->text(), QStringLiteral("Yours"));
    script.PickFile(m_Home->filePath(QStringLiteral("all.json")));
    clickBelow(collections, "Import");
    QCOMPARE(countRows(), QStringLiteral("5 10 20"));
    QCOMPARE(ask("SELECT DISTINCT hex(signal) || signal_mean || signal_sd || att_name FROM "
                 "signal_template")
                 .size(),
             4);
    QVERIFY(run(QLatin1String(QSqlDatabase::defaultConnection), "PRAGMA query_only = ON"));
    script.PickFile(m_Home->filePath(QStringLiteral("all.json")));
    clickBelow(collections, "Import");
    QCOMPARE(TakeUserErrors(),
             QStringList(QStringLiteral("Error: Error: The templates were not stored. (attempt to "
                                        "write a readonly database)")));
    script.PickFile(QString());
    clickBelow(collections, "Import");
    QCOMPARE(countRows(), QStringLiteral("5 10 20"));
}

QTEST_MAIN(TestTemplateDialogs)
#include "tst_templatedialogs.moc"
