#include "alignedarray.h"
#include "complextorealfft.h"
#include "realtocomplexfft.h"
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

using Complex = std::complex<double>;

class TestFft : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase() { QVERIFY(QDir::setCurrent(m_Folder.path())); }
    void cleanupTestCase() { QDir::setCurrent(QDir::rootPath()); }
    void passesOverBadWisdom();
    void measuresThreadsOnce();
    void endsOnWrongArrays();
    void checksAllocations();

private:
    QTemporaryDir m_Folder;
};

/// What runs in a process of its own, as it may end it.
static void workAlone(const QByteArray& name)
{
    AlignedArray<double> values(20);
    AlignedArray<Complex> spectrum(10);
    auto* inPlace = reinterpret_cast<Complex*>(values.GetData());
    if (name == "plan nothing")
        RealToComplexFft(0, values.GetData(), spectrum.GetData());
    const RealToComplexFft apart(16, values.GetData(), spectrum.GetData());
    const RealToComplexFft within(16, values.GetData(), inPlace);
    if (name == "within")
        within.Transform(values.GetData(), inPlace);
    if (name == "apart as within")
        apart.Transform(values.GetData(), inPlace);
    if (name == "within as apart")
        within.Transform(values.GetData(), spectrum.GetData());
    if (name == "misaligned")
        apart.Transform(values.GetData() + 1, spectrum.GetData());
}

/// The exit status of that, and what it wrote to the error stream.
static int runAlone(const QString& name, QByteArray& errors)
{
    QProcess process;
    process.start(QCoreApplication::applicationFilePath(), {QStringLiteral("--alone"), name});
    if (!process.waitForFinished() || process.exitStatus() != QProcess::NormalExit)
        return -1;
    errors = process.readAllStandardError();
    return process.exitCode();
}

// Wisdom is read once in a process.
void TestFft::passesOverBadWisdom()
{
    QByteArray errors;
    for (const char* text : {"", "not wisdom", "(fftw-3.3.10 fftw_wisdom #x3c27", "\xff(\"((#"}) {
        QFile file(QStringLiteral("wisdom3.txt"));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(text);
        file.close();
        QCOMPARE(runAlone(QStringLiteral("plan"), errors), 0);
        QCOMPARE(errors, QByteArray());
        QVERIFY(file.open(QIODevice::ReadOnly) && file.readAll().endsWith(")\n"));
    }
    // A folder in its place can be neither read nor written.
    QVERIFY(QFile::remove(QStringLiteral("wisdom3.txt")));
    QVERIFY(QDir().mkdir(QStringLiteral("wisdom3.txt")));
    QCOMPARE(runAlone(QStringLiteral("plan"), errors), 0);
    QCOMPARE(errors, QByteArray());
}

void TestFft::measuresThreadsOnce()
{
    AlignedArray<double> values(997);
    AlignedArray<Complex> spectrum(499);
    FftPlan::SetThreadCount(2);
    const RealToComplexFft first(997, values.GetData(), spectrum.GetData());
    QElapsedTimer timer;
    timer.start();
    const RealToComplexFft second(997, values.GetData(), spectrum.GetData());
    QVERIFY(timer.elapsed() < 100);
    QCOMPARE(second.GetThreadCount(), first.GetThreadCount());
    FftPlan::SetThreadCount(1);
}

void TestFft::endsOnWrongArrays()
{
    QByteArray errors;
    for (const char* call : {"apart as within", "within as apart", "misaligned"}) {
        QCOMPARE(runAlone(QLatin1String(call), errors), 1);
        QCOMPARE(errors, QByteArray("ERROR: fft constructor and call must be both in place or both "
                                    "out of place\n"));
    }
    QCOMPARE(runAlone(QStringLiteral("within"), errors), 0);
    QCOMPARE(runAlone(QStringLiteral("plan nothing"), errors), 1);
    QCOMPARE(errors, QByteArray("Unable to construct FFTW plan\n"));
}

void TestFft::checksAllocations()
{
    for (const size_t alignment : {0, 4, 12, 24})
        QVERIFY_EXCEPTION_THROWN(AlignedArray<double>(3, alignment), std::invalid_argument);
    QVERIFY_EXCEPTION_THROWN(AlignedArray<double>(SIZE_MAX / 4), MemoryLimitError);
}

int main(int argc, char* argv[])
{
    if (argc == 3 && QByteArray(argv[1]) == "--alone") {
        workAlone(argv[2]);
        return 0;
    }
    const QCoreApplication application(argc, argv);
    TestFft test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_fft.moc"
