#include "cutcollection.h"
#include "fieldlookup.h"
#include "lineplot.h"
#include "mergelabelsdialog.h"
#include "modalscript.h"
#include "segmentresizedialog.h"
#include "segmentresizewidget.h"
#include "segmenttext.h"
#include "selectionplotareawidget.h"
#include "testdata.h"
#include <QPushButton>
#include <QSpinBox>
#include <QtTest>

namespace
{

void type(QSpinBox* box, const char* text)
{
    box->setFocus();
    box->selectAll();
    QTest::keyClicks(box, QLatin1String(text));
}

} // namespace

class TestSegmentDialogs : public QObject
{
    Q_OBJECT
private slots:
    void triesMergeDistances();
    void resizes();
    void refusesCrossedEnds();
};

void TestSegmentDialogs::triesMergeDistances()
{
    CutCollection cuts;
    MakeCuts(cuts, "10L 12 20L 27R 40L 100");
    const QString apart = ToText(cuts);
    MergeLabelsDialog dialog(&cuts, nullptr);
    QSignalSpy merged(&dialog, &MergeLabelsDialog::LabelsMerged);
    dialog.show();
    auto* distance = FindField<QSpinBox>(&dialog, QStringLiteral("Merge Distance (Time steps)"));
    // Enter computes, and the first key replaces the 0.
    QTest::keyClicks(distance, QStringLiteral("5"));
    QTest::keyClick(distance, Qt::Key_Return);
    QCOMPARE(ToText(cuts), QStringLiteral("L(0,11) (10,12) L(11,20) R(20,27) L(27,40) (40,100)"));
    type(distance, "0");
    ClickButton(&dialog, QStringLiteral("Compute"));
    QCOMPARE(ToText(cuts), apart);
    QCOMPARE(merged.size(), 2);
    QVERIFY(dialog.isVisible());
    ClickButton(&dialog, QStringLiteral("Cancel"));
    QVERIFY(!dialog.isVisible());
    QCOMPARE(merged.size(), 2);
}

void TestSegmentDialogs::resizes()
{
    const auto data = MakeColumn(std::vector<double>(100, 1.0));
    SegmentResizeDialog dialog;
    SegmentResizeWidget* widget = dialog.GetResizeWidget();
    widget->SetDataSet(data.get());
    widget->SetLimits(10, 90);
    widget->SetPlotRange(20, 200);
    widget->SetSelection(5, 60);
    dialog.show();
    const auto boxes = widget->findChildren<QSpinBox*>();
    QCOMPARE(boxes.size(), 4);
    auto* plot = widget->findChild<SelectionPlotAreaWidget*>();
    const auto plotRows = [&] {
        const RowSpan shown = plot->GetPlot(0)->GetRange();
        RowSpan selected;
        plot->GetSelection(selected.m_From, selected.m_To);
        return QVector<int>({shown.m_From, shown.m_To, selected.m_From, selected.m_To});
    };
    QCOMPARE(plotRows(), QVector<int>({20, 90, 10, 60}));
    type(boxes[0], "30");
    type(boxes[1], "50");
    type(boxes[2], "25");
    type(boxes[3], "80");
    QCOMPARE(plotRows(), QVector<int>({25, 80, 30, 50}));
    // A plot of nothing keeps what it showed.
    type(boxes[3], "25");
    QCOMPARE(plotRows(), QVector<int>({25, 80, 30, 50}));
    ClickButton(&dialog, QStringLiteral("Save"));
    QCOMPARE(dialog.result(), int(QDialog::Accepted));
    QCOMPARE(widget->GetSelection(), RowSpan({30, 50}));
}

void TestSegmentDialogs::refusesCrossedEnds()
{
    const auto data = MakeColumn(std::vector<double>(100, 1.0));
    SegmentResizeDialog dialog;
    dialog.GetResizeWidget()->SetDataSet(data.get());
    dialog.GetResizeWidget()->SetSelection(30, 50);
    dialog.show();
    auto* to = dialog.findChildren<QSpinBox*>()[1];
    const auto* save = FindButton(&dialog, QStringLiteral("Save"));
    type(to, "7");
    QVERIFY(!save->isEnabled());
    QTest::keyClick(to, Qt::Key_Return);
    QVERIFY(dialog.isVisible());
    // The other end has not followed.
    type(to, "30");
    QVERIFY(save->isEnabled());
    QTest::keyClick(to, Qt::Key_Return);
    QCOMPARE(dialog.result(), int(QDialog::Accepted));
}

QTEST_MAIN(TestSegmentDialogs)
#include "tst_segmentdialogs.moc"
