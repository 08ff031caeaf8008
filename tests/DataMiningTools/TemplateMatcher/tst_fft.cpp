#include "alignedarray.h"
#include "complextorealfft.h"
#include "ordinaryuser.h"
#include "realtocomplexfft.h"
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>
#include <optional>

using Complex = std::complex<double>;

class TestFft : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void cleanup() { QDir::setCurrent(QDir::rootPath()); }
    void passesOverBadWisdom_data();
    void passesOverBadWisdom();
    void transformsThereAndBack();
    void measuresThreadsOnce();
    void endsOnWrongArrays_data();
    void endsOnWrongArrays();
    void checksAllocations();

private:
    std::unique_ptr<QTemporaryDir> m_Folder;
};

void TestFft::init()
{
    m_Folder = std::make_unique<QTemporaryDir>();
    QVERIFY(QDir::setCurrent(m_Folder->path()));
    FftPlan::SetThreadCount(1);
}

/// What runs in a process of its own, as it may end it.
static void workAlone(const QByteArray& name)
{
    AlignedArray<double> values(20);
    AlignedArray<Complex> spectrum(10);
    auto* inPlace = reinterpret_cast<Complex*>(values.GetData());
    std::optional<OrdinaryUser> user;
    if (name == "plan as ordinary user")
        user.emplace();
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

void TestFft::passesOverBadWisdom_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("words") << QByteArray("not wisdom");
    QTest::newRow("cut off") << QByteArray("(fftw-3.3.10 fftw_wisdom #x3c2734");
    QTest::newRow("bytes") << QByteArray("\0\xff\x80(\"((#", 8);
    QTest::newRow("locked") << QByteArray("locked");
}

// Wisdom is read once in a process.
void TestFft::passesOverBadWisdom()
{
    QFETCH(QByteArray, text);
    QFile file(QStringLiteral("wisdom3.txt"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(text);
    file.close();
    const bool isLocked = text == "locked";
    if (isLocked)
        QVERIFY(file.setPermissions(QFileDevice::Permissions()));
    QByteArray errors;
    const int status = runAlone(
        isLocked ? QStringLiteral("plan as ordinary user") : QStringLiteral("plan"), errors);
    QCOMPARE(status, 0);
    QCOMPARE(errors, QByteArray());
    QVERIFY(file.setPermissions(QFileDevice::ReadOwner));
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll().startsWith("(fftw"), !isLocked);
}

void TestFft::transformsThereAndBack()
{
    for (const int length : {1, 2, 3, 16, 17, 360}) {
        AlignedArray<double> values{size_t(length)};
        AlignedArray<Complex> spectrum(size_t(length) / 2 + 1);
        const RealToComplexFft forward(length, values.GetData(), spectrum.GetData());
        const ComplexToRealFft back(length, spectrum.GetData(), values.GetData());
        for (int i = 0; i < length; ++i)
            values[size_t(i)] = i * i % 7 - 2.5;
        const std::vector<double> before(values.GetData(), values.GetData() + length);
        forward.Transform(values.GetData(), spectrum.GetData());
        for (int bin = 0; bin < forward.GetSpectrumLength(); ++bin) {
            Complex sum;
            for (int i = 0; i < length; ++i)
                sum += before[size_t(i)] * std::polar(1.0, -2.0 * M_PI * bin * i / length);
            QVERIFY(std::abs(spectrum[size_t(bin)] - sum) < 1e-9);
        }
        back.Transform(spectrum.GetData(), values.GetData());
        for (int i = 0; i < length; ++i)
            QVERIFY(std::abs(values[size_t(i)] * back.GetScale() - before[size_t(i)]) < 1e-12);
    }
}

void TestFft::measuresThreadsOnce()
{
    AlignedArray<double> values(997);
    AlignedArray<Complex> spectrum(499);
    FftPlan::SetThreadCount(2);
    QElapsedTimer timer;
    timer.start();
    const RealToComplexFft first(997, values.GetData(), spectrum.GetData());
    const bool hasThreads = timer.restart() >= 200;
    const RealToComplexFft second(997, values.GetData(), spectrum.GetData());
    QVERIFY(timer.elapsed() < 100);
    QCOMPARE(second.GetThreadCount(), first.GetThreadCount());
    if (!hasThreads)
        QCOMPARE(first.GetThreadCount(), 1);
}

void TestFft::endsOnWrongArrays_data()
{
    const QByteArray message =
        "ERROR: fft constructor and call must be both in place or both out of place\n";
    QTest::addColumn<QByteArray>("message");
    QTest::newRow("apart as within") << message;
    QTest::newRow("within as apart") << message;
    QTest::newRow("misaligned") << message;
    QTest::newRow("plan nothing") << QByteArray("Unable to construct FFTW plan\n");
    QTest::newRow("within") << QByteArray();
}

void TestFft::endsOnWrongArrays()
{
    QFETCH(QByteArray, message);
    QByteArray errors;
    const int status = runAlone(QString::fromLatin1(QTest::currentDataTag()), errors);
    QCOMPARE(errors, message);
    QCOMPARE(status, message.isEmpty() ? 0 : 1);
}

void TestFft::checksAllocations()
{
    for (const size_t alignment : {0, 4, 12, 24})
        QVERIFY_EXCEPTION_THROWN(AlignedArray<double>(3, alignment), std::invalid_argument);
    QVERIFY_EXCEPTION_THROWN(AlignedArray<double>(SIZE_MAX / 4), MemoryLimitError);
    const AlignedArray<double> wide(3, 64);
    QCOMPARE(reinterpret_cast<quintptr>(wide.GetData()) % 64, quintptr(0));
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
