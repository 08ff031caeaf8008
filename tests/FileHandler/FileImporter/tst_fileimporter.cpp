#include "fileimporter.h"
#include "ordinaryuser.h"

#include <QApplication>
#include <QProgressDialog>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

/// What the importer adds to the reader: files, the dialog and who owns the result.
class TestFileImporter : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void readsAFile();
    void refusesWhatIsNoFile();
    void refusesAnUnreadableFile();
    void keepsThePartReadBeforeAFailure();
    void readsOneColumn();
    void showsProgress();

private:
    QString write(const QByteArray& text);

    std::unique_ptr<QTemporaryDir> m_Folder;
};

void TestFileImporter::init()
{
    m_Folder = std::make_unique<QTemporaryDir>();
}

QString TestFileImporter::write(const QByteArray& text)
{
    QFile file(m_Folder->filePath(QStringLiteral("data.txt")));
    return file.open(QIODevice::WriteOnly) && file.write(text) == text.size() ? file.fileName()
                                                                              : QString();
}

void TestFileImporter::readsAFile()
{
    FileImporter importer(nullptr, write("head\r\nd;1;2\r\nd;3\r\nd;4;5"));
    importer.SetStartRow(1);
    importer.SetStartColumn(1);
    importer.SetDelimiter(QStringLiteral(";"));
    QVERIFY(importer.Read());
    const std::unique_ptr<DataSet> data(importer.GetDataSet());
    QCOMPARE(data->GetRowCount(), 2);
    QCOMPARE(data->GetRow(1)->GetValue(1), 5.0);
    QCOMPARE(importer.GetWarnings(), QStringList(QStringLiteral("Attribute mis-match at line 3")));
    QCOMPARE(importer.GetError(), QString());
}

void TestFileImporter::refusesWhatIsNoFile()
{
    FileImporter missing(nullptr, m_Folder->filePath(QStringLiteral("none")));
    QVERIFY(!missing.Read());
    QCOMPARE(missing.GetError(), QStringLiteral("File does not exist or is no longer present"));
    QCOMPARE(missing.GetDataSet(), nullptr);
    for (const QString& path : {m_Folder->path(), QStringLiteral("/dev/zero")}) {
        FileImporter importer(nullptr, path);
        QVERIFY(!importer.Read());
        QCOMPARE(importer.GetError(), QStringLiteral("Can't open file"));
        QCOMPARE(importer.GetDataSet(), nullptr);
    }
}

void TestFileImporter::refusesAnUnreadableFile()
{
    const QString path = write("1");
    QFile::setPermissions(path, QFileDevice::WriteOwner);
    QFile::setPermissions(m_Folder->path(), QFileDevice::ReadOwner | QFileDevice::WriteOwner |
                                                QFileDevice::ExeOwner | QFileDevice::ExeGroup |
                                                QFileDevice::ExeOther);
    const OrdinaryUser user;
    QVERIFY(user.IsOrdinary());
    FileImporter importer(nullptr, path);
    QVERIFY(!importer.Read());
    QCOMPARE(importer.GetError(), QStringLiteral("Can't open file"));
}

void TestFileImporter::keepsThePartReadBeforeAFailure()
{
    FileImporter importer(nullptr, write("1\t2\n" + QByteArray("3\n").repeated(11)));
    QVERIFY(!importer.Read());
    QVERIFY(importer.GetError().startsWith(QStringLiteral("A large number of attriubte")));
    const std::unique_ptr<DataSet> data(importer.GetDataSet());
    QCOMPARE(data->GetRowCount(), 1);
}

void TestFileImporter::readsOneColumn()
{
    FileImporter importer(nullptr, write("1\ta\n2\tb\n"));
    const std::unique_ptr<QStringList> texts(importer.ReadColumn(1));
    QCOMPARE(*texts, QStringList({QStringLiteral("a"), QStringLiteral("b")}));
    const std::unique_ptr<QStringList> none(importer.ReadColumn(2));
    QVERIFY(none->isEmpty());
    QVERIFY(!importer.GetError().isEmpty());
}

void TestFileImporter::showsProgress()
{
    // The window system gets its turn while the file is read.
    QString seen;
    QTimer::singleShot(0, this, [&] {
        for (const QWidget* widget : QApplication::topLevelWidgets()) {
            const auto* dialog = qobject_cast<const QProgressDialog*>(widget);
            if (dialog && dialog->isVisible())
                seen = QStringLiteral("%1: %2 of %3")
                           .arg(dialog->windowTitle(), dialog->labelText())
                           .arg(dialog->maximum());
        }
    });
    FileImporter importer(nullptr, write(QByteArray("1\t2\n").repeated(1000)));
    QVERIFY(importer.Read());
    delete importer.GetDataSet();
    QCOMPARE(seen, QStringLiteral("Loading file: Initalizing File Reader of 1000"));
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

QTEST_MAIN(TestFileImporter)
#include "tst_fileimporter.moc"
