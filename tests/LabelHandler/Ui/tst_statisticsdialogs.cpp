#include "behaviorclassstatisticswidget.h"
#include "exportwizardpage.h"
#include "fieldlookup.h"
#include "modalscript.h"
#include "nodestatswidget.h"
#include "segmenttext.h"
#include "testdata.h"
#include <QComboBox>
#include <QLineEdit>
#include <QMessageBox>
#include <QTableWidget>
#include <QTemporaryDir>
#include <QWizard>
#include <QtTest>

namespace
{

QByteArray readFile(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("missing");
}

// The texts of all fields in the order in which they stand.
QString fields(const QWidget& widget)
{
    QStringList texts;
    for (const auto* field : widget.findChildren<QLineEdit*>())
        texts.append(field->text());
    return texts.join(QLatin1Char('|'));
}

} // namespace

/// The dialogs that show statistics and write data.
class TestStatisticsDialogs : public QObject
{
    Q_OBJECT
private slots:
    void init() { m_Path = m_Directory.filePath(QStringLiteral("out.csv")); }
    void cleanup()
    {
        QFile::remove(m_Path);
        QCOMPARE(TakeUserErrors(), QStringList());
    }
    void behavior();
    void rows();
    void exportPage();

private:
    QTemporaryDir m_Directory;
    QString m_Path;
};

void TestStatisticsDialogs::behavior()
{
    const auto data = MakeDataSet("0 9\n0 1.23456789\n0 2\n0 -20\n0 -6\n");
    CutCollection cuts;
    MakeCuts(cuts, "3L 4L 5");
    BehaviorLabel label(QStringLiteral("graze <b>"));
    BehaviorClassStatisticsWidget dialog(data.get());
    dialog.exportSideBySide();
    dialog.SetAttribute(1);
    dialog.SetBehavior(&label);
    QCOMPARE(fields(dialog), QStringLiteral("graze <b>|0|0|0|0"));
    LabelSegment(label, cuts.GetSegment(0));
    LabelSegment(label, cuts.GetSegment(1));
    dialog.SetBehavior(&label);
    QCOMPARE(fields(dialog), QStringLiteral("graze <b>|2|9|-20|-7.96091"));

    ModalScript script;
    script.PickFile(QString());
    ClickButton(&dialog, QStringLiteral("Export"));
    script.PickFile(m_Path);
    ClickButton(&dialog, QStringLiteral("Export"));
    QCOMPARE(readFile(m_Path),
             QByteArray("Behavior 1 (B ), Behavior 2 (B )\n9, -20\n1.23457, 0\n2, 0\n"));
    script.PickFile(m_Path + QStringLiteral("/out.csv"));
    ClickButton(&dialog, QStringLiteral("Export"));
    QCOMPARE(TakeUserErrors().join(QString()),
             QStringLiteral("Error writing label collection: Error: Unable to open file"));
    dialog.SetAttribute(-1);
    ClickButton(&dialog, QStringLiteral("Export"));
}

void TestStatisticsDialogs::rows()
{
    const auto data = MakeDataSet("1 10\n2 20\n3 60.123456789\n4 -5\n");
    NodeStatsWidget dialog(data.get());
    dialog.show();
    const auto* minimum = FindField<QLineEdit>(&dialog, QStringLiteral("Minimum"));
    const auto* maximum = FindField<QLineEdit>(&dialog, QStringLiteral("Maximum"));
    const auto* mean = FindField<QLineEdit>(&dialog, QStringLiteral("Mean"));
    const auto shown = [&] {
        return QStringList{minimum->text(), maximum->text(), mean->text()}.join(QLatin1Char(' '));
    };
    QCOMPARE(shown(), QStringLiteral("1 4 2.5"));
    auto* attributes = FindField<QComboBox>(&dialog, QStringLiteral("Data Attribute"));
    QTest::keyClick(attributes, Qt::Key_Down);
    QCOMPARE(shown(), QStringLiteral("-5 60.1235 21.2809"));
    dialog.SetRange(1, 3);
    QCOMPARE(shown(), QStringLiteral("20 60.1235 40.0617"));

    ModalScript script;
    script.PickFile(m_Path);
    ClickButton(&dialog, QStringLiteral("Export Data"));
    QCOMPARE(readFile(m_Path), QByteArray("A,B\n2,20\n3,60.123456789\n"));
    dialog.SetRange(1, -1);
    QCOMPARE(shown(), QStringLiteral("-5 60.1235 21.2809"));
}

void TestStatisticsDialogs::exportPage()
{
    const auto data = MakeDataSet("1 0.12345678901234\n2 nan\n");
    QWizard wizard;
    auto* page = new ExportWizardPage;
    wizard.addPage(page);
    page->SetDataSet(data.get());
    for (int row = 0; row < 2; ++row)
        data->GetRow(row)->AddValue(row);
    data->AddAttribute(QStringLiteral("C"), ATTRIBUTE_OTHER);
    wizard.show();
    // What is shown is what will be written, a column that was added meanwhile included.
    const auto* table = page->findChild<QTableWidget*>();
    QByteArray shown;
    for (int column = 0; column < table->columnCount(); ++column)
        shown += table->horizontalHeaderItem(column)->text().toUtf8() + (column == 2 ? '\n' : ',');
    for (int cell = 0; cell < table->rowCount() * table->columnCount(); ++cell)
        shown += table->item(cell / 3, cell % 3)->text().toUtf8() + (cell % 3 == 2 ? '\n' : ',');

    ModalScript script;
    const auto closeSuccess = [](QMessageBox* box) {
        QCOMPARE(box->windowTitle() + box->text(),
                 QStringLiteral("SuccessFile exported successfully"));
        box->accept();
    };
    script.PickFile(m_Path);
    ClickButton(page, QStringLiteral("..."));
    script.On<QMessageBox>(closeSuccess);
    auto* field = FindField<QLineEdit>(page, QStringLiteral("File:"));
    QTest::keyClick(field, Qt::Key_Return);
    QVERIFY(wizard.isVisible());
    QCOMPARE(readFile(m_Path), QByteArray("A,B,C\n1,0.12345678901234,0\n2,nan,1\n"));
    QCOMPARE(shown, readFile(m_Path));

    page->SetDataSet(nullptr);
    ClickButton(page, QStringLiteral("Export"));
    QCOMPARE(TakeUserErrors(),
             QStringList(QStringLiteral(
                 "Error writing file: Error writing file: Data set not initalized.")));
    QTest::keyClick(field, Qt::Key_Return);
    QVERIFY(!wizard.isVisible());
}

QTEST_MAIN(TestStatisticsDialogs)
#include "tst_statisticsdialogs.moc"
