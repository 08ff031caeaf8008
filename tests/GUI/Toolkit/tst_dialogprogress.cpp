#include "dialogprogress.h"
#include "modalscript.h"

#include <QProgressDialog>
#include <QPushButton>
#include <QtTest>

namespace
{

QProgressDialog* shownDialog()
{
    return qobject_cast<QProgressDialog*>(QApplication::activeModalWidget());
}

} // namespace

class TestDialogProgress : public QObject
{
    Q_OBJECT
private slots:
    void showsAtOnce();
    void showsWhenLong();
    void cannotBeStopped();
};

void TestDialogProgress::showsAtOnce()
{
    DialogProgress progress(nullptr, QStringLiteral("Work"));
    progress.SetRange(0, 10);
    QVERIFY(shownDialog());
    // No other window is to change what the work reads.
    QCOMPARE(shownDialog()->windowModality(), Qt::ApplicationModal);
    QVERIFY(!QGuiApplication::overrideCursor());
}

void TestDialogProgress::showsWhenLong()
{
    {
        DialogProgress progress(nullptr, QStringLiteral("Work"), DialogProgress::CAN_STOP,
                                DialogProgress::SHOW_WHEN_LONG);
        progress.SetRange(0, 10);
        progress.SetValue(1);
        QVERIFY(!shownDialog() && QGuiApplication::overrideCursor());
        QTest::qSleep(600);
        progress.SetValue(7);
        QVERIFY(shownDialog() && !QGuiApplication::overrideCursor());
        QCOMPARE(shownDialog()->value(), 7);
        QVERIFY(!progress.IsStopRequested());
        ClickButton(shownDialog(), QStringLiteral("Cancel"));
        QVERIFY(progress.IsStopRequested());
        // What the work still does is not shown again.
        progress.SetRange(0, 5);
        QTest::qSleep(60);
        progress.SetValue(1);
        QVERIFY(!shownDialog() && progress.IsStopRequested());
    }
    {
        const DialogProgress quick(nullptr, QStringLiteral("Work"), DialogProgress::CAN_STOP,
                                   DialogProgress::SHOW_WHEN_LONG);
    }
    QVERIFY(!QGuiApplication::overrideCursor());
}

void TestDialogProgress::cannotBeStopped()
{
    DialogProgress progress(nullptr, QStringLiteral("Work"));
    progress.SetRange(0, 10);
    QTest::keyClick(shownDialog(), Qt::Key_Escape);
    shownDialog()->close();
    QVERIFY(shownDialog() && shownDialog()->findChildren<QPushButton*>().isEmpty());
    QVERIFY(!progress.IsStopRequested());
}

QTEST_MAIN(TestDialogProgress)
#include "tst_dialogprogress.moc"
