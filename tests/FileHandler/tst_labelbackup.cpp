#include "labelbackup.h"
#include "segmenttext.h"
#include "testdata.h"
#include <QTemporaryDir>
#include <QtTest>

class TestLabelBackup : public QObject
{
    Q_OBJECT
private slots:
    void followsTheLabels();
    void removesTheOldest();

private:
    QStringList files() const { return QDir(m_Folder).entryList(QDir::Files, QDir::Name); }
    QByteArray text(const QString& name) const;

    QTemporaryDir m_Home;
    const QString m_Folder = m_Home.filePath(QStringLiteral("new/backup"));
};

QByteArray TestLabelBackup::text(const QString& name) const
{
    QFile file(m_Folder + QLatin1Char('/') + name);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void TestLabelBackup::followsTheLabels()
{
    const auto data = MakeDataSet("1\n2\n3\n4\n5\n6");
    CutCollection cuts;
    MakeCuts(cuts, "2 4 6");
    LabelCollection labels;
    labels.AddLabel(new BehaviorLabel(QStringLiteral("walk")));
    LabelBackup backup(m_Folder);
    backup.Watch(data.get(), &labels);
    backup.Write();
    QVERIFY(files().isEmpty());

    LabelSegment(*labels.GetLabel(0), cuts.GetSegment(1));
    backup.Write();
    QCOMPARE(files().size(), 1);
    QCOMPARE(text(files().first()), QByteArray("walk,2,4\n"));
    QVERIFY(QFile::remove(m_Folder + QLatin1Char('/') + files().first()));
    backup.Write();
    QVERIFY2(files().isEmpty(), "written though nothing has changed");

    // What changed last is written before the labels go.
    labels.GetLabel(0)->SetName(QStringLiteral("run"));
    backup.Watch(nullptr, nullptr);
    QCOMPARE(text(files().value(0)), QByteArray("run,2,4\n"));
    // However soon the next recording follows.
    for (int count = 2; count <= 6; ++count) {
        backup.Watch(data.get(), &labels);
        backup.Write();
        QCOMPARE(files().size(), count);
    }
}

void TestLabelBackup::removesTheOldest()
{
    for (int i = 0; i < 25; ++i) {
        QFile file(m_Folder + QStringLiteral("/labels-%1.thm").arg(1000 + i));
        QVERIFY(file.open(QIODevice::WriteOnly));
    }
    const auto data = MakeDataSet("1\n2");
    CutCollection cuts;
    MakeCuts(cuts, "1 2");
    LabelCollection labels;
    labels.AddLabel(new BehaviorLabel);
    LabelSegment(*labels.GetLabel(0), cuts.GetSegment(0));
    LabelBackup backup(m_Folder);
    backup.Watch(data.get(), &labels);
    backup.Write();
    QCOMPARE(files().size(), 20);
    QCOMPARE(files().filter(QStringLiteral("labels-1000")), QStringList());
}

QTEST_GUILESS_MAIN(TestLabelBackup)
#include "tst_labelbackup.moc"
