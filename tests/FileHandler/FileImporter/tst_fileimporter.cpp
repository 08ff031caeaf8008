#include "fileimporter.h"
#include "ordinaryuser.h"

#include <QApplication>
#include <QProgressDialog>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

/// What the importer adds to the reader and the wizard does not show.
class TestFileImporter : public QObject
{
    Q_OBJECT
private slots:
    void refusesAnUnreadableFile();
    void showsProgress();

private:
    QString write(const QByteArray& text);

    QTemporaryDir m_Folder;
};

QString TestFileImporter::write(const QByteArray& text)
{
    QFile file(m_Folder.filePath(QStringLiteral("data.txt")));
    return file.open(QIODevice::WriteOnly) && file.write(text) == text.size() ? file.fileName()
                                                                              : QString();
}

void TestFileImporter::refusesAnUnreadableFile()
{
    const QString path = write("1");
    QFile::setPermissions(path, QFileDevice::WriteOwner);
    QFile::setPermissions(m_Folder.path(), QFileDevice::ReadOwner | QFileDevice::WriteOwner |
                                               QFileDevice::ExeOwner | QFileDevice::ExeGroup |
                                               QFileDevice::ExeOther);
    const OrdinaryUser user;
    QVERIFY(user.IsOrdinary());
    FileImporter importer(nullptr, path);
    QVERIFY(!importer.Read());
    QCOMPARE(importer.GetError(), QStringLiteral("Can't open file"));
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
