#include "ordinaryuser.h"
#include "textoutput.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTextStream>
#include <QtTest>
#include <cmath>
#include <csignal>
#include <cstring>
#include <random>
#include <sys/resource.h>
#include <sys/stat.h>

namespace
{

void writeFile(const QString& path, const QByteArray& text)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(text), qint64(text.size()));
}

QByteArray readFile(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("missing");
}

// Any bits, numbers as recordings have them, and those at the ends of the range.
std::vector<double> manyNumbers()
{
    const double infinity = std::numeric_limits<double>::infinity();
    const double noNumber = std::numeric_limits<double>::quiet_NaN();
    std::vector<double> numbers{0.0,       -0.0,      noNumber,   -noNumber, infinity, -infinity,
                                5e-324,    -1e-310,   1e308,      1e14,      1e15,     999999.5,
                                9999995.0, 0.0001,    0.00001,    1e5,       1e6,      0.1 + 0.2,
                                2.5e-5,    100000.25, 99999999.9, 0.5};
    std::mt19937_64 random(20261121);
    for (int i = 0; i < 100000; ++i) {
        const quint64 bits = random();
        double number = 0;
        std::memcpy(&number, &bits, sizeof number);
        numbers.push_back(number);
        numbers.push_back(double(qint64(bits)) * std::pow(10.0, -int(bits % 25)));
        numbers.push_back(std::round(double(int(bits)) * 1e-3) * 1e-4);
        // Many of these end exactly between two texts.
        numbers.push_back(std::ldexp(double(qint64(bits) >> (bits % 60)), -int(bits % 30)));
    }
    return numbers;
}

} // namespace

class TestTextOutput : public QObject
{
    Q_OBJECT
private slots:
    void numbersReadAsQtWritesThem();
    void refuses();
    void keepsTheOldFileOnAFullDisk();
    void writesThroughLinks();
};

void TestTextOutput::numbersReadAsQtWritesThem()
{
    const QTemporaryDir directory;
    const QString path = directory.filePath(QStringLiteral("numbers"));
    const std::vector<double> numbers = manyNumbers();
    QVERIFY(WriteTextFile(path, [&](TextOutput& out) {
        for (const double number : numbers)
            out.Number(number).Numbers(&number, 1, ' ', 14) << '\n';
    }));
    QByteArray expected;
    QTextStream stream(&expected);
    for (const double number : numbers)
        stream << number << ' ' << QString::number(number, 'g', 14) << '\n';
    stream.flush();
    const QList<QByteArray> lines = readFile(path).split('\n');
    const QList<QByteArray> expectedLines = expected.split('\n');
    QCOMPARE(lines.size(), expectedLines.size());
    for (int i = 0; i < lines.size(); ++i)
        QCOMPARE(lines[i], expectedLines[i]);
}

void TestTextOutput::refuses()
{
    QTemporaryDir directory;
    const auto inside = [&](const char* name) { return directory.filePath(QLatin1String(name)); };
    QDir().mkpath(inside("folder"));
    writeFile(inside("readonly"), "old");
    writeFile(inside("folder/file"), "old");
    QCOMPARE(mkfifo(qPrintable(inside("pipe")), 0666), 0);
    QFile::setPermissions(directory.path(), QFile::Permissions(0x7777));
    QFile::setPermissions(inside("readonly"), QFile::Permissions(0x4444));
    QFile::setPermissions(inside("folder"), QFile::Permissions(0x5555));
    QStringList paths{QString(), inside("gone/file"), inside(QByteArray(300, 'x').constData())};
    for (const char* name : {"folder", "pipe", "readonly", "folder/file"})
        paths.append(inside(name));
    {
        const OrdinaryUser user;
        QVERIFY(user.IsOrdinary());
        for (const QString& path : qAsConst(paths))
            QVERIFY2(!WriteTextFile(path, [](TextOutput& out) { out << "new"; }), qPrintable(path));
    }
    QCOMPARE(readFile(inside("readonly")), QByteArray("old"));
    QCOMPARE(readFile(inside("folder/file")), QByteArray("old"));
    QVERIFY(!QFileInfo(inside("pipe")).isFile());
    QFile::setPermissions(inside("folder"), QFile::Permissions(0x7777));
}

void TestTextOutput::keepsTheOldFileOnAFullDisk()
{
    const QTemporaryDir directory;
    const QString path = directory.filePath(QStringLiteral("file"));
    writeFile(path, "old");
    rlimit limit{};
    getrlimit(RLIMIT_FSIZE, &limit);
    std::signal(SIGXFSZ, SIG_IGN);
    for (const int length : {5000, 5000000}) {
        rlimit small = limit;
        small.rlim_cur = 1000;
        setrlimit(RLIMIT_FSIZE, &small);
        const bool isWritten = WriteTextFile(path, [&](TextOutput& out) {
            for (int i = 0; i < length; ++i)
                out << 'x';
        });
        setrlimit(RLIMIT_FSIZE, &limit);
        QVERIFY(!isWritten);
    }
    QCOMPARE(readFile(path), QByteArray("old"));
    QCOMPARE(QDir(directory.path()).entryList(QDir::Files | QDir::Hidden).size(), 1);
}

void TestTextOutput::writesThroughLinks()
{
    const QTemporaryDir directory;
    const QString file = directory.filePath(QStringLiteral("file"));
    const QString link = directory.filePath(QStringLiteral("link"));
    writeFile(file, "old");
    QVERIFY(QFile::link(file, link));
    QVERIFY(WriteTextFile(link, [](TextOutput& out) { out << QStringLiteral("n\u00e9w"); }));
    QVERIFY(QFileInfo(link).isSymLink());
    QCOMPARE(readFile(file), QByteArray("n\xC3\xA9w"));
}

QTEST_GUILESS_MAIN(TestTextOutput)
#include "tst_textoutput.moc"
