#include "recording.h"
#include "sensors.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <cmath>

namespace
{
// The lines of a file as numbers; a text is NaN.
QList<QList<double>> readTable(const QString& path, int headerLines)
{
    QFile file(path);
    QList<QList<double>> table;
    if (!file.open(QIODevice::ReadOnly))
        return table;
    for (int line = 0; !file.atEnd(); ++line) {
        const QList<QByteArray> texts = file.readLine().trimmed().split(',');
        if (line < headerLines)
            continue;
        table.append(QList<double>());
        for (const QByteArray& text : texts) {
            bool isNumber = false;
            const double number = text.toDouble(&isNumber);
            table.last().append(isNumber ? number : std::nan(""));
        }
    }
    return table;
}

QByteArray readBytes(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}
} // namespace

class TestGenerator : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void sineAgreesWithTheLibrary();
    void bodyFrame_data();
    void bodyFrame();
    void labelsCoverEveryRow();
    void diveDepthsFitTheLabels();
    void clockFollowsTheRow();
    void meanAccelerationIsGravity();
    void fixesStandOnThePathAndAboveWater();
    void seedDecides();
    void plainHasNineColumns();
    void failureIsReported();

private:
    QString path(const char* name) const { return m_Folder.filePath(QLatin1String(name)); }
    RecordingOptions options() const;

    QTemporaryDir m_Folder;
    QList<QList<double>> m_Rows;
    QList<QList<double>> m_Labels;
    QList<QByteArray> m_Names;
};

RecordingOptions TestGenerator::options() const
{
    RecordingOptions options;
    options.rows = 20000;
    options.seed = 77;
    options.folder = m_Folder.path().toStdString();
    return options;
}

void TestGenerator::initTestCase()
{
    QVERIFY(WriteExample(options()));
    m_Rows = readTable(path("recording.csv"), 1);
    m_Labels = readTable(path("labels.txt"), 0);
    for (const QByteArray& line : readBytes(path("labels.txt")).trimmed().split('\n'))
        m_Names.append(line.split(',').first());
    QCOMPARE(m_Rows.size(), 20000);
    QCOMPARE(m_Names.size(), m_Labels.size());
}

void TestGenerator::sineAgreesWithTheLibrary()
{
    for (double degrees = -1000; degrees < 1000; degrees += 0.37) {
        const double radians = degrees * M_PI / 180;
        QVERIFY(std::abs(SinDegrees(degrees) - std::sin(radians)) < 1e-11);
        QVERIFY(std::abs(CosDegrees(degrees) - std::cos(radians)) < 1e-11);
    }
}

// Worked out by hand: where north, east and down are for a body that looks and leans so.
void TestGenerator::bodyFrame_data()
{
    QTest::addColumn<QList<double>>("world");
    QTest::addColumn<QList<double>>("attitude");
    QTest::addColumn<QList<double>>("body");
    using L = QList<double>;
    QTest::newRow("north, looking north") << L{1, 0, 0} << L{0, 0, 0} << L{1, 0, 0};
    QTest::newRow("north, looking east") << L{1, 0, 0} << L{90, 0, 0} << L{0, -1, 0};
    QTest::newRow("down, nose up") << L{0, 0, 1} << L{45, 90, 0} << L{-1, 0, 0};
    QTest::newRow("down, right side down") << L{0, 0, 1} << L{200, 0, 90} << L{0, 1, 0};
    QTest::newRow("east, nose up, looking east") << L{0, 1, 0} << L{90, 90, 0} << L{0, 0, 1};
}

void TestGenerator::bodyFrame()
{
    QFETCH(QList<double>, world);
    QFETCH(QList<double>, attitude);
    QFETCH(QList<double>, body);
    const Vector3 found =
        IntoBody({world[0], world[1], world[2]}, attitude[0], attitude[1], attitude[2]);
    QVERIFY(std::abs(found.x - body[0]) < 1e-10);
    QVERIFY(std::abs(found.y - body[1]) < 1e-10);
    QVERIFY(std::abs(found.z - body[2]) < 1e-10);
}

void TestGenerator::labelsCoverEveryRow()
{
    double next = 1;
    for (const QList<double>& label : qAsConst(m_Labels)) {
        QCOMPARE(label.at(1), next);
        QVERIFY(label.at(2) >= label.at(1));
        next = label.at(2) + 1;
    }
    QCOMPARE(next, 20001.0);
}

void TestGenerator::diveDepthsFitTheLabels()
{
    int dives = 0;
    for (int i = 0; i < m_Labels.size(); ++i) {
        const bool surface = !QList<QByteArray>{"descend", "forage", "ascend"}.contains(m_Names[i]);
        dives += m_Names[i] == "forage";
        for (int row = int(m_Labels[i][1]); row <= m_Labels[i][2]; ++row) {
            const double depth = m_Rows[row - 1][6];
            if (surface)
                QVERIFY(std::abs(depth) < 0.2);
            else if (m_Names[i] == "forage")
                QVERIFY(depth > 9 && depth < 40);
        }
    }
    QVERIFY(dives >= 3);
}

void TestGenerator::clockFollowsTheRow()
{
    for (int i = 0; i < m_Rows.size(); ++i) {
        const QList<double>& row = m_Rows[i];
        QVERIFY(std::abs(row[7] * 3600 + row[8] * 60 + row[9] - 9 * 3600 - i / 25.0) < 1e-9);
    }
}

void TestGenerator::meanAccelerationIsGravity()
{
    // By behaviour: upright on the water, head down on the way down, head up on the way up.
    const QHash<QByteArray, QPair<double, double>> expected = {
        {"rest", {0.1, -1}}, {"descend", {-0.93, -0.33}}, {"ascend", {0.94, -0.27}}};
    for (auto behaviour = expected.begin(); behaviour != expected.end(); ++behaviour) {
        double x = 0, z = 0;
        int count = 0;
        for (int i = 0; i < m_Labels.size(); ++i) {
            if (m_Names[i] != behaviour.key())
                continue;
            for (int row = int(m_Labels[i][1]); row <= m_Labels[i][2]; ++row, ++count) {
                x += m_Rows[row - 1][0];
                z += m_Rows[row - 1][2];
            }
        }
        QVERIFY2(std::abs(x / count - behaviour->first) < 0.08, behaviour.key());
        QVERIFY2(std::abs(z / count - behaviour->second) < 0.12, behaviour.key());
    }
}

void TestGenerator::fixesStandOnThePathAndAboveWater()
{
    const auto truth = readTable(path("path.csv"), 1);
    const auto fixes = readTable(path("gps.csv"), 1);
    const auto clock = readTable(path("gps_clock.csv"), 1);
    QCOMPARE(truth.size(), 800);
    QVERIFY(fixes.size() > 50);
    QCOMPARE(clock.size(), fixes.size());
    for (int i = 0; i < fixes.size(); ++i) {
        const QList<double>& fix = fixes[i];
        const QList<double>& point = truth[int(fix[0])];
        QCOMPARE(fix[6], fix[0] * 25 + 1);
        QVERIFY(point[3] < 0.3);
        // 1 degree is about 111 km, and about half of that eastward.
        const double metres = std::hypot((fix[1] - point[1]) * 111000, (fix[2] - point[2]) * 57000);
        QVERIFY(metres < 4 * fix[4]);
        QCOMPARE(fix.mid(7, 3), m_Rows[int(fix[6]) - 1].mid(7, 3));
        QCOMPARE(clock[i].mid(0, 3), fix.mid(7, 3));
        QCOMPARE(clock[i].mid(4, 2), fix.mid(1, 2));
    }
}

void TestGenerator::seedDecides()
{
    QTemporaryDir other;
    RecordingOptions changed = options();
    changed.folder = other.path().toStdString();
    const QString copy = other.filePath(QStringLiteral("recording.csv"));
    QVERIFY(WriteExample(changed));
    QVERIFY(readBytes(copy) == readBytes(path("recording.csv")));
    changed.seed = 78;
    QVERIFY(WriteExample(changed));
    QVERIFY(readBytes(copy) != readBytes(path("recording.csv")));
}

void TestGenerator::plainHasNineColumns()
{
    QTemporaryDir other;
    RecordingOptions plain = options();
    plain.rows = 3000;
    plain.folder = other.path().toStdString();
    QVERIFY(WritePlain(plain));
    const auto rows = readTable(other.filePath(QStringLiteral("recording.csv")), 1);
    QCOMPARE(rows.size(), 3000);
    for (int i = 0; i < rows.size(); ++i) {
        QCOMPARE(rows[i].size(), 9);
        QCOMPARE(rows[i].mid(0, 7), m_Rows[i].mid(0, 7));
        QVERIFY(!std::isnan(rows[i][7] + rows[i][8]));
    }
}

void TestGenerator::failureIsReported()
{
    RecordingOptions nowhere = options();
    nowhere.folder += "/nowhere";
    QVERIFY(!WriteExample(nowhere));

    QTemporaryDir full;
    QVERIFY(QFile::link(QStringLiteral("/dev/full"), full.filePath(QStringLiteral("labels.txt"))));
    RecordingOptions noSpace = options();
    noSpace.folder = full.path().toStdString();
    QVERIFY(!WriteExample(noSpace));
}

QTEST_APPLESS_MAIN(TestGenerator)
#include "tst_generator.moc"
