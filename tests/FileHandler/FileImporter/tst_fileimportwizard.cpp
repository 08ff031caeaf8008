#include "attributenamedialog.h"
#include "attributenamedialogrow.h"
#include "dataset.h"
#include "fieldlookup.h"
#include "fileimportwizard.h"
#include "filespecwizardpage.h"
#include "headernamedialog.h"
#include "modalscript.h"
#include <QComboBox>
#include <QHeaderView>
#include <QInputDialog>
#include <QLineEdit>
#include <QSpinBox>
#include <QTableWidget>
#include <QTemporaryDir>
#include <QtTest>

namespace
{

// "1,2,..." with columns fields, where row r holds r in its first field.
QByteArray csvLines(int rows, int columns)
{
    QByteArray text;
    for (int row = 1; row <= rows; ++row) {
        text += QByteArray::number(row);
        for (int column = 1; column < columns; ++column)
            text += ',' + QByteArray::number(column + 0.25);
        text += '\n';
    }
    return text;
}

QString headers(const QWidget* wizard)
{
    const auto* table = wizard->findChild<QTableWidget*>();
    QStringList texts;
    for (int column = 0; column < table->columnCount(); ++column)
        texts.append(table->horizontalHeaderItem(column)->text());
    return texts.join(QLatin1Char(' '));
}

QString attributes(const DataSet& data)
{
    QStringList texts;
    for (int i = 0; i < data.GetAttributeCount(); ++i)
        texts.append(
            QStringLiteral("%1:%2").arg(data.GetAttributeName(i)).arg(data.GetAttributeType(i)));
    return texts.join(QLatin1Char(' '));
}

void choose(QComboBox* box, const char* text)
{
    box->setFocus();
    QTest::keyClick(box, Qt::Key_Home);
    for (int i = 0; i < box->count() && box->currentText() != QLatin1String(text); ++i)
        QTest::keyClick(box, Qt::Key_Down);
    QCOMPARE(box->currentText(), QString::fromUtf8(text));
}

void clickHeader(const QWidget* wizard, int column)
{
    QHeaderView* header = wizard->findChild<QTableWidget*>()->horizontalHeader();
    QTest::mouseClick(header->viewport(), Qt::LeftButton, {},
                      QPoint(header->sectionViewportPosition(column) + 10, 5));
}

} // namespace

class TestFileImportWizard : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void cleanup();
    void importByHand();
    void enterImportsFirst();
    void troubles_data();
    void troubles();
    void failedSecondImport();
    void customNames();
    void importGoesBackToFirstPreset();
    void loggerPage();

private:
    QString writeFile(const QByteArray& content);
    // Picks the file and sets the delimiter to a comma.
    void pick(const QString& path);
    void finish() { ClickButton(m_Wizard.get(), QStringLiteral("Finish")); }
    bool isAccepted() const { return m_Wizard->result() == QDialog::Accepted; }
    QComboBox* preset() const
    {
        return FindField<QComboBox>(m_Wizard.get(), QStringLiteral("Preset Headers"));
    }

    QTemporaryDir m_Folder;
    std::unique_ptr<FileImportWizard> m_Wizard;
};

void TestFileImportWizard::init()
{
    m_Wizard = std::make_unique<FileImportWizard>();
    m_Wizard->show();
    QVERIFY(QTest::qWaitForWindowActive(m_Wizard.get()));
}

void TestFileImportWizard::cleanup()
{
    m_Wizard.reset();
    QCOMPARE(TakeUserErrors(), QStringList());
}

QString TestFileImportWizard::writeFile(const QByteArray& content)
{
    QFile file(m_Folder.filePath(QStringLiteral("data.csv")));
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        qFatal("cannot write the test's file");
    return file.fileName();
}

void TestFileImportWizard::pick(const QString& path)
{
    {
        ModalScript user;
        user.PickFile(path);
        ClickButton(m_Wizard.get(), QStringLiteral("..."));
    }
    choose(FindField<QComboBox>(m_Wizard.get(), QStringLiteral("File Deliminator:")),
           "Comma Seperated (CSV)");
}

void TestFileImportWizard::importByHand()
{
    pick(writeFile("a line\nto skip\n" + csvLines(12, 9) + "\n"));
    FindField<QSpinBox>(m_Wizard.get(), QStringLiteral("Data Start Row"))->setValue(2);
    auto* rate = FindField<QSpinBox>(m_Wizard.get(), QStringLiteral("Sampling Rate (Hz):"));
    QCOMPARE(rate->value(), 40);
    rate->setValue(100);
    QCOMPARE(rate->value(), 99);
    ClickButton(m_Wizard.get(), QStringLiteral("Import"));

    auto* table = m_Wizard->findChild<QTableWidget*>();
    QCOMPARE(headers(m_Wizard.get()),
             QStringLiteral("Date Time Acc_X Acc_Y Acc_Z Comp_X Comp_Y Comp_Z TG_Presure"));
    QCOMPARE(table->rowCount(), 10);
    QCOMPARE(table->item(9, 0)->text(), QStringLiteral("10"));
    QCOMPARE(table->item(9, 8)->text(), QStringLiteral("8.25"));
    QVERIFY(!(table->item(0, 0)->flags() & Qt::ItemIsEditable));

    {
        ModalScript user;
        user.On<HeaderNameDialog>([](HeaderNameDialog* dialog) {
            QCOMPARE(dialog->GetName(), QStringLiteral("Acc_X"));
            QCOMPARE(dialog->GetType(), 2);
            QTest::keyClicks(dialog->findChild<QLineEdit*>(), QStringLiteral("Surge"));
            choose(dialog->findChild<QComboBox*>(), "Pressure");
            ClickButton(dialog, QStringLiteral("Update"));
        });
        user.On<HeaderNameDialog>([](HeaderNameDialog* dialog) {
            QTest::keyClicks(dialog->findChild<QLineEdit*>(), QStringLiteral("Nothing"));
            ClickButton(dialog, QStringLiteral("Cancel"));
        });
        clickHeader(m_Wizard.get(), 2);
        clickHeader(m_Wizard.get(), 3);
    }
    finish();
    QVERIFY(isAccepted());
    const std::unique_ptr<DataSet> data = m_Wizard->TakeDataSet();
    QCOMPARE(attributes(*data), QStringLiteral("Surge:14 Acc_Y:3 Acc_Z:4 Comp_X:11 Comp_Y:12 "
                                               "Comp_Z:13 TG_Presure:14"));
    QCOMPARE(data->GetRowCount(), 12);
    QCOMPARE(data->GetRow(11)->GetLabel(), QStringLiteral("12"));
    QCOMPARE(data->GetRow(11)->GetFirstValue(), 2.25);
    QCOMPARE(data->m_SamplingRate, 99);
}

void TestFileImportWizard::enterImportsFirst()
{
    pick(writeFile(csvLines(3, 2)));
    auto* startRow = FindField<QSpinBox>(m_Wizard.get(), QStringLiteral("Data Start Row"));
    startRow->setFocus();
    QTest::keyClick(startRow, Qt::Key_Return);
    QVERIFY(m_Wizard->GetDataSet());
    QCOMPARE(m_Wizard->GetDataSet()->GetRowCount(), 3);
    QTest::keyClick(startRow, Qt::Key_Up);
    QTest::keyClick(startRow, Qt::Key_Return);
    QCOMPARE(m_Wizard->GetDataSet()->GetRowCount(), 2);
    QVERIFY(m_Wizard->isVisible());
    QTest::keyClick(startRow, Qt::Key_Return);
    QVERIFY(isAccepted());
    delete m_Wizard->GetDataSet();
}

void TestFileImportWizard::troubles_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("importError");
    QTest::addColumn<QString>("finishError");
    const QString reading = QStringLiteral("Error reading file: Error reading file: ");
    const QString nothing = QStringLiteral("Error: Error - No data file has been imported.");
    QTest::newRow("no file chosen")
        << QString() << "Error: Error - No data file has been specified to be imported." << nothing;
    QTest::newRow("vanished") << m_Folder.filePath(QStringLiteral("gone.csv"))
                              << reading + QStringLiteral("File does not exist or is no longer "
                                                          "present")
                              << nothing;
    QTest::newRow("folder") << m_Folder.path() << reading + QStringLiteral("Can't open file")
                            << nothing;
    QTest::newRow("device") << "/dev/zero" << reading + QStringLiteral("Can't open file")
                            << nothing;
    QTest::newRow("no rows") << writeFile("\n\n") << QString()
                             << "Error: Error - The imported data file holds no data rows.";
    QTest::newRow("binary") << QCoreApplication::applicationFilePath()
                            << reading + QStringLiteral("A large number of attriubte mis-matches")
                            << QString();
}

void TestFileImportWizard::troubles()
{
    QFETCH(QString, path);
    QFETCH(QString, importError);
    QFETCH(QString, finishError);
    // A file dialog refuses what is not there, so the path comes in behind it.
    const auto edits = m_Wizard->findChildren<QLineEdit*>();
    const auto file = std::find_if(edits.begin(), edits.end(),
                                   [](const QLineEdit* edit) { return edit->isReadOnly(); });
    (*file)->setText(path);
    for (const char* press : {"first", "second"}) {
        ClickButton(m_Wizard.get(), QStringLiteral("Import"));
        const QString error = TakeUserErrors().join(QLatin1Char('|'));
        QVERIFY2(error.startsWith(importError) && error.isEmpty() == importError.isEmpty(), press);
    }
    if (finishError.isEmpty())
        return;
    clickHeader(m_Wizard.get(), 0);
    finish();
    QCOMPARE(TakeUserErrors(), QStringList(finishError));
    QVERIFY(m_Wizard->isVisible());
}

void TestFileImportWizard::failedSecondImport()
{
    pick(writeFile(csvLines(3, 2)));
    ClickButton(m_Wizard.get(), QStringLiteral("Import"));
    QCOMPARE(m_Wizard->GetDataSet()->GetRowCount(), 3);

    // Eleven lines too short: what was read before them can still be accepted.
    writeFile(csvLines(4, 2) + QByteArray("5\n").repeated(11));
    ClickButton(m_Wizard.get(), QStringLiteral("Import"));
    QCOMPARE(TakeUserErrors().size(), 1);
    QCOMPARE(m_Wizard->GetDataSet()->GetRowCount(), 4);

    QVERIFY(m_Folder.remove());
    ClickButton(m_Wizard.get(), QStringLiteral("Import"));
    QCOMPARE(TakeUserErrors().size(), 1);
    QCOMPARE(m_Wizard->findChild<QTableWidget*>()->columnCount(), 0);
    QVERIFY(QDir().mkpath(m_Folder.path()));
    finish();
    QCOMPARE(TakeUserErrors(),
             QStringList(QStringLiteral("Error: Error - No data file has been imported.")));
    QVERIFY(m_Wizard->isVisible());
}

void TestFileImportWizard::customNames()
{
    pick(writeFile(csvLines(2, 3)));
    ClickButton(m_Wizard.get(), QStringLiteral("Import"));
    ModalScript user;
    user.On<AttributeNameDialog>([](AttributeNameDialog* dialog) {
        const auto rows = dialog->findChildren<AttributeNameDialogRow*>();
        QCOMPARE(rows.size(), 3);
        QCOMPARE(dialog->GetNames().join(QLatin1Char(',')),
                 QStringLiteral("Attribute 1,Attribute 2,Attribute 3"));
        choose(rows[0]->findChild<QComboBox*>(), "Time");
        choose(rows[1]->findChild<QComboBox*>(), "Mag Y");
        auto* name = rows[2]->findChild<QLineEdit*>();
        name->selectAll();
        QTest::keyClicks(name, QStringLiteral("Depth"));
        choose(rows[2]->findChild<QComboBox*>(), "Other");
        ClickButton(dialog, QStringLiteral("Add"));
    });
    preset()->setCurrentIndex(5);
    QCOMPARE(headers(m_Wizard.get()), QStringLiteral("Time Mag Y Other"));

    choose(preset(), "Preset 4");
    user.On<AttributeNameDialog>(
        [](AttributeNameDialog* dialog) { QTest::keyClick(dialog, Qt::Key_Escape); });
    preset()->setCurrentIndex(5);
    QCOMPARE(preset()->currentText(), QStringLiteral("Preset 1"));
    QCOMPARE(headers(m_Wizard.get()), QStringLiteral("Col_1 Col_2 Col_3"));
}

void TestFileImportWizard::importGoesBackToFirstPreset()
{
    pick(writeFile(csvLines(2, 5)));
    preset()->setCurrentIndex(3);
    ClickButton(m_Wizard.get(), QStringLiteral("Import"));
    QCOMPARE(headers(m_Wizard.get()), QStringLiteral("Col_1 Col_2 Col_3 Col_4 Col_5"));
    QCOMPARE(preset()->currentText(), QStringLiteral("Preset 4"));

    // Picking the entry that the box already shows.
    QTest::mouseClick(preset(), Qt::LeftButton);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    QCOMPARE(headers(m_Wizard.get()), QStringLiteral("Acc_X Acc_Y Acc_Z Col_3 Col_4"));
}

void TestFileImportWizard::loggerPage()
{
    const QString path = writeFile(csvLines(60, 13));
    std::unique_ptr<DataSet> data;
    QWizard wizard;
    wizard.addPage(new FileSpecWizardPage(&data));
    wizard.show();
    ModalScript user;
    user.PickFile(path);
    user.On<QInputDialog>([](QInputDialog* dialog) {
        QCOMPARE(dialog->textValue(), QStringLiteral("Acc_X"));
        dialog->setTextValue(QStringLiteral("Surge"));
        dialog->accept();
    });
    ClickButton(&wizard, QStringLiteral("..."));
    choose(FindField<QComboBox>(&wizard, QStringLiteral("File Deliminator:")),
           "Comma Seperated (CSV)");
    ClickButton(&wizard, QStringLiteral("Import"));
    QCOMPARE(wizard.findChild<QTableWidget*>()->rowCount(), 50);
    clickHeader(&wizard, 0);
    ClickButton(&wizard, QStringLiteral("Finish"));
    QCOMPARE(wizard.result(), int(QDialog::Accepted));
    QCOMPARE(data->GetAttributeName(0), QStringLiteral("Surge"));
    QCOMPARE(data->GetAttributeName(12), QStringLiteral("TG_Unknown13"));
    QCOMPARE(data->m_SamplingRate, 40);
}

QTEST_MAIN(TestFileImportWizard)
#include "tst_fileimportwizard.moc"
