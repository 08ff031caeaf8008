#include "attributematchdialog.h"
#include "axessettingsdialog.h"
#include "axisrangebox.h"
#include "datatabledialog.h"
#include "fieldlookup.h"
#include "modalscript.h"
#include "patternsdataobject.h"
#include "testdata.h"
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QTableWidget>
#include <QtTest>

namespace
{

std::unique_ptr<DataSet> countingData(int rows)
{
    QByteArray text;
    for (int row = 0; row < rows; ++row)
        text += QByteArray::number(row + 0.123456789, 'g', 16) + '\n';
    return MakeDataSet(text.constData());
}

void setBox(AxisRangeBox* box, const char* text)
{
    box->setFocus();
    box->selectAll();
    QTest::keyClicks(box, QLatin1String(text));
    QTest::keyClick(box, Qt::Key_Tab);
}

} // namespace

class TestDialogs : public QObject
{
    Q_OBJECT
private slots:
    void cleanup() { QCOMPARE(TakeUserErrors(), QStringList()); }
    void tablePages_data();
    void tablePages();
    void axesMirrorAndReset();
    void axesSavedUntouched();
    void axesRefuseCrossedLimits();
    void attributeMatch();
};

void TestDialogs::tablePages_data()
{
    QTest::addColumn<int>("rows");
    QTest::addColumn<QString>("steps");
    QTest::addColumn<int>("first");
    QTest::addColumn<int>("shown");
    QTest::newRow("opens at the first row") << 250 << "" << 1 << 100;
    QTest::newRow("typed page counts from 0") << 250 << "1" << 101 << 100;
    QTest::newRow("last page ends at the last row") << 250 << "2" << 151 << 100;
    QTest::newRow("next stops") << 250 << "+ + + + +" << 151 << 100;
    QTest::newRow("previous stops") << 250 << "+ - - -" << 1 << 100;
    QTest::newRow("not a page") << 1000 << "3 x" << 301 << 100;
    QTest::newRow("beyond the end") << 1000 << "99999999" << 901 << 100;
    QTest::newRow("negative") << 1000 << "-5" << 1 << 100;
    QTest::newRow("fewer than a page") << 50 << "1 + -" << 1 << 50;
    QTest::newRow("no rows") << 0 << "+ -" << 0 << 0;
}

void TestDialogs::tablePages()
{
    QFETCH(int, rows);
    QFETCH(QString, steps);
    QFETCH(int, first);
    QFETCH(int, shown);
    const auto data = countingData(rows);
    DataTableDialog dialog(data.get());
    auto* page = dialog.findChild<QLineEdit*>();
    QCOMPARE(page->text(), QStringLiteral("1"));
    for (const QString& step : steps.split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
        if (step == QStringLiteral("+") || step == QStringLiteral("-")) {
            ClickButton(&dialog, step == QStringLiteral("+") ? QStringLiteral("Next")
                                                             : QStringLiteral("Previous"));
        } else {
            // Past the validator, as a paste would be.
            page->setText(step);
            dialog.pageManuallySet();
        }
    }
    const auto* table = dialog.findChild<QTableWidget*>();
    QCOMPARE(table->rowCount(), shown);
    if (shown == 0)
        return;
    QCOMPARE(table->verticalHeaderItem(0)->text(), QString::number(first));
    QCOMPARE(table->item(0, 0)->text(), QString::number(first - 1 + 0.123456789, 'g', 15));
    QCOMPARE(table->item(shown - 1, 0)->text().toDouble(), first + shown - 2 + 0.123456789);
    QVERIFY(!(table->item(0, 0)->flags() & Qt::ItemIsEditable));
}

void TestDialogs::axesMirrorAndReset()
{
    const auto data = MakeDataSet("2 -2 -7\n5 5 3\n");
    AxesSettingsDialog dialog(data.get());
    const auto limits = [&] {
        QStringList texts;
        for (const auto* box : dialog.findChildren<AxisRangeBox*>())
            texts.append(box->text());
        return texts.join(QLatin1Char(' '));
    };
    QCOMPARE(limits(), QStringLiteral("2 5 -2 5 -7 3"));
    ClickButton(&dialog, QStringLiteral("Mirror Values"));
    QCOMPARE(limits(), QStringLiteral("0 5 -5 5 -7 7"));
    dialog.findChildren<QCheckBox*>().at(1)->setChecked(true);
    ClickButton(&dialog, QStringLiteral("Save"));
    QCOMPARE(dialog.result(), int(QDialog::Accepted));
    QCOMPARE(data->GetAxisRange(2), qMakePair(-7.0, 7.0));
    QVERIFY(!data->GetZeroLine(0) && data->GetZeroLine(1));

    AxesSettingsDialog again(data.get());
    QVERIFY(!again.findChildren<QCheckBox*>().at(1)->isChecked());
    ClickButton(&again, QStringLiteral("Reset Values"));
    ClickButton(&again, QStringLiteral("Save"));
    QCOMPARE(data->GetAxisRange(2), qMakePair(-7.0, 3.0));
    QVERIFY(!data->GetZeroLine(1));
}

void TestDialogs::axesSavedUntouched()
{
    // Too large for the boxes, too small for their decimals, and no number at all.
    const auto data = MakeDataSet("250000 0.00000001 nan\n300000 0.00000003 nan\n");
    const double minimum = data->GetMinValue(1);
    AxesSettingsDialog dialog(data.get());
    QCOMPARE(dialog.findChildren<AxisRangeBox*>().at(0)->value(), 100000.0);
    // Walking through a box reads its text again.
    for (auto* box : dialog.findChildren<AxisRangeBox*>())
        QTest::keyClick(box, Qt::Key_Return);
    ClickButton(&dialog, QStringLiteral("Save"));
    QCOMPARE(data->GetAxisRange(0), qMakePair(250000.0, 300000.0));
    QCOMPARE(data->GetMinValue(1), minimum);
    QCOMPARE(data->GetMinValue(2), double(DataSet::GetInitialMin()));
}

void TestDialogs::axesRefuseCrossedLimits()
{
    const auto data = MakeDataSet("1 1\n2 2\n", {QStringLiteral("A"), QStringLiteral("B<b>")});
    AxesSettingsDialog dialog(data.get());
    dialog.show();
    const auto boxes = dialog.findChildren<AxisRangeBox*>();
    setBox(boxes[2], "8");
    ClickButton(&dialog, QStringLiteral("Save"));
    QVERIFY(dialog.isVisible());
    QVERIFY(TakeUserErrors().join(QString()).contains(QStringLiteral("minimum")));
    QCOMPARE(data->GetMinValue(1), 1.0);
    setBox(boxes[3], "9.5");
    ClickButton(&dialog, QStringLiteral("Save"));
    QCOMPARE(data->GetAxisRange(1), qMakePair(8.0, 9.5));
}

void TestDialogs::attributeMatch()
{
    PatternsDataObject pattern;
    auto* collection = new SignalTemplateCollectionDataObject;
    for (const char* name : {"B", "b", "C"}) {
        auto* signal = new SignalTemplateDataObject;
        signal->setAttributeName(QLatin1String(name));
        collection->AddSignal(signal);
    }
    pattern.AddSignalCollection(collection);
    const auto data = MakeDataSet("1 2 3\n");
    AttributeMatchDialog dialog({&pattern}, data.get());
    FindField<QComboBox>(&dialog, QStringLiteral("C"))->setCurrentIndex(1);
    // A name that no column has stands for none until one is chosen.
    dialog.show();
    ClickButton(&dialog, QStringLiteral("Save"));
    QCOMPARE(TakeUserErrors(),
             QStringList(QStringLiteral("Error: Error: No column chosen for b.")));
    QVERIFY(dialog.isVisible());
    FindField<QComboBox>(&dialog, QStringLiteral("b"))->setCurrentIndex(2);
    ClickButton(&dialog, QStringLiteral("Save"));
    QVERIFY(!dialog.isVisible());
    const QHash<QString, int> expected{
        {QStringLiteral("B"), 1}, {QStringLiteral("b"), 2}, {QStringLiteral("C"), 1}};
    QCOMPARE(dialog.GetAttributeMap(), expected);
    QCOMPARE(AttributeMatchDialog({}, data.get()).GetAttributeMap().size(), 0);
}

QTEST_MAIN(TestDialogs)
#include "tst_dialogs.moc"
