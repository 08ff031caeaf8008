#include "cutcollectionwriter.h"
#include "filewriter.h"
#include "groundtruithreader.h"
#include "instancecolumnswriter.h"
#include "labelwriter.h"
#include "ordinaryuser.h"
#include "scriptedprogress.h"
#include "segmenttext.h"
#include "testdata.h"

#include <QDirIterator>
#include <QTemporaryDir>
#include <QTemporaryFile>
#include <QtTest>

namespace
{

using Files = QMap<QString, QByteArray>;

// Everything below a directory.
Files filesIn(const QString& directory)
{
    Files files;
    QDirIterator it(directory, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (it.hasNext()) {
        QFile file(it.next());
        if (file.open(QIODevice::ReadOnly))
            files.insert(QDir(directory).relativeFilePath(file.fileName()), file.readAll());
    }
    return files;
}

// Six rows of two attributes with three behaviours, two of them of one name.
struct Study {
    std::unique_ptr<DataSet> m_Data =
        MakeDataSet("1 0.1\n2 123456.789\n3 -1e-20\n4 0.3333333333333333\n5 -0\n6 nan\n");
    CutCollection m_Cuts;
    LabelCollection m_Labels;

    explicit Study(const QStringList& names)
    {
        MakeCuts(m_Cuts, "2 3 5 6");
        const auto label = [&](const QString& name, const QList<int>& segments) {
            m_Labels.AddLabel(new BehaviorLabel(name));
            for (const int segment : segments)
                LabelSegment(*m_Labels.GetLabel(m_Labels.GetLabelCount() - 1),
                             m_Cuts.GetSegment(segment));
        };
        label(names[0], {3, 0});
        label(names[1], {2});
        label(names[2], {1});
    }
};

const QString written = QStringLiteral("written");
const QString stopped = QStringLiteral("Writing was stopped");
const QString failed = QStringLiteral("Unable to open file");

// Returns the error, or "written".
using Write = std::function<QString(const Study&, const QString& path, Progress&)>;

Write labelWriter(const std::function<bool(LabelWriter&, const Study&)>& write)
{
    return [=](const Study& study, const QString& path, Progress& progress) {
        LabelWriter writer(path);
        writer.SetDataSet(study.m_Data.get());
        writer.SetProgress(&progress);
        return write(writer, study) ? written : writer.GetError();
    };
}

Write labelWriter(bool (LabelWriter::*write)(const LabelCollection*))
{
    return labelWriter(
        [=](LabelWriter& writer, const Study& study) { return (writer.*write)(&study.m_Labels); });
}

Write dataWriter(int from, int to)
{
    return [=](const Study& study, const QString& path, Progress& progress) {
        FileWriter writer(path);
        writer.SetDataSet(study.m_Data.get());
        writer.SetRange(from, to);
        writer.SetProgress(&progress);
        return writer.Write() ? written : writer.GetError();
    };
}

bool writeSummary(LabelWriter& writer, const Study& study)
{
    return writer.WriteSummary(&study.m_Labels, 0);
}

bool writeFirstLabel(LabelWriter& writer, const Study& study)
{
    return writer.WriteLabel(study.m_Labels.GetLabel(0));
}

QString writeColumns(const Study& study, const QString& path, Progress& progress)
{
    if (WriteInstanceColumns(path, *study.m_Data, *study.m_Labels.GetLabel(0), 0, &progress))
        return written;
    return progress.IsStopRequested() ? stopped : failed;
}

// Nobody waits for it: it reports no progress, so that is asked here.
QString writeCuts(const Study& study, const QString& path, Progress& progress)
{
    progress.SetValue(0);
    CutCollectionWriter writer(path);
    writer.SetDataSet(study.m_Data.get());
    if (progress.IsStopRequested())
        return stopped;
    return writer.WriteSegments(&study.m_Cuts) ? written : writer.GetError();
}

// What stands in and below a folder can be read only, or written again.
void setWritable(const QString& folder, bool isWritable)
{
    const QFile::Permissions permissions(isWritable ? 0x7777 : 0x5555);
    QFile::setPermissions(folder, permissions);
    QDirIterator it(folder, QDir::Dirs | QDir::NoDotAndDotDot, QDirIterator::Subdirectories);
    while (it.hasNext())
        QFile::setPermissions(it.next(), permissions);
}

} // namespace
Q_DECLARE_METATYPE(Write)
Q_DECLARE_METATYPE(Files)

class TestLabelFiles : public QObject
{
    Q_OBJECT
private slots:
    void writes_data();
    void writes();
    void keepsOldFiles_data() { writes_data(); }
    void keepsOldFiles();
    void refusesNames();
    void refusesWithoutData();
    void projectComesBack();
};

void TestLabelFiles::writes_data()
{
    QTest::addColumn<Write>("write");
    QTest::addColumn<Files>("expected");
    const auto inFile = [](const QByteArray& text) { return Files{{QStringLiteral("out"), text}}; };
    const QByteArray rows[] = {"1\t1\t0.1\t\n",      "2\t2\t123457\t\n", "3\t3\t-1e-20\t\n",
                               "4\t4\t0.333333\t\n", "5\t5\t0\t\n",      "6\t6\tnan\t\n"};
    const QByteArray head = "Time \tA\tB\t\n";
    QTest::newRow("project") << labelWriter(&LabelWriter::WriteProject)
                             << inFile("Walk,5,5\nWalk,0,2\nr\xC3\xA9st,3,5\nWalk,2,3\n");
    const QByteArray columns = "Time From, Time To, Data Row From, Data Row To, Data Length, "
                               "Max A, Min A, Mean A, Standard Deviation A\n";
    QTest::newRow("summary")
        << labelWriter(writeSummary)
        << inFile("Name:,Walk\nNumber instances:,2\nTotal Duration (Data Rows):,3\n"
                  "Data length:,1, Number Instances:, 1\nData length:,2, Number Instances:, 1\n" +
                  columns + "6,6,5,6,1,6,6,6,0\n1,3,0,2,2,2,1,1.5,0.5\n\n \n \n" +
                  "Name:,r\xC3\xA9st\nNumber instances:,1\nTotal Duration (Data Rows):,2\n"
                  "Data length:,2, Number Instances:, 1\n" +
                  columns + "4,6,3,5,2,5,4,4.5,0.5\n\n \n \n" +
                  "Name:,Walk\nNumber instances:,1\nTotal Duration (Data Rows):,1\n"
                  "Data length:,1, Number Instances:, 1\n" +
                  columns + "3,4,2,3,1,3,3,3,0\n\n \n \n");
    QTest::newRow("combined")
        << labelWriter(&LabelWriter::WriteCombined)
        << Files{{QStringLiteral("out/Walk.txt"), head + rows[5] + rows[0] + rows[1] + rows[2]},
                 {QStringLiteral("out/r\u00e9st.txt"), head + rows[3] + rows[4]}};
    QTest::newRow("separate files")
        << labelWriter(&LabelWriter::WriteSeparateFiles)
        << Files{{QStringLiteral("out/Walk/cut0.txt"), head + rows[5]},
                 {QStringLiteral("out/Walk/cut1.txt"), head + rows[0] + rows[1]},
                 {QStringLiteral("out/Walk/cut2.txt"), head + rows[2]},
                 {QStringLiteral("out/r\u00e9st/cut0.txt"), head + rows[3] + rows[4]}};
    QTest::newRow("aligned") << labelWriter(&LabelWriter::WriteAligned)
                             << inFile("Time,A,B,Behavior\n1,1,0.1,0\n2,2,123457,0\n"
                                       "3,3,-1e-20,2\n4,4,0.333333,1\n5,5,0,1\n6,6,nan,0\n");
    QTest::newRow("label up to the last row")
        << labelWriter(writeFirstLabel) << inFile("6\t6\t1\tWalk\n1\t3\t2\tWalk\n");
    QTest::newRow("side by side") << Write(writeColumns)
                                  << inFile("Behavior 1 (A ), Behavior 2 (A )\n6, 1\n0, 2\n");
    QTest::newRow("data") << dataWriter(-1, -1)
                          << inFile("A,B\n1,0.1\n2,123456.789\n3,-1e-20\n4,0.33333333333333\n"
                                    "5,0\n6,nan\n");
    QTest::newRow("range of data") << dataWriter(4, 100) << inFile("A,B\n5,0\n6,nan\n");
    QTest::newRow("cuts") << Write(writeCuts) << inFile("0\t2\t0\n2\t3\t0\n3\t5\t0\n5\t6\t0\n");
}

void TestLabelFiles::writes()
{
    QFETCH(Write, write);
    QFETCH(Files, expected);
    const Study study(
        {QStringLiteral("Walk"), QStringLiteral("r\u00e9st"), QStringLiteral("Walk")});
    const QTemporaryDir directory;
    const QString path = directory.filePath(QStringLiteral("out"));
    if (!expected.contains(QStringLiteral("out")))
        QVERIFY(QDir().mkpath(path));
    // The second time everything is there already.
    for (int i = 0; i < 2; ++i) {
        QCOMPARE(write(study, path, NoProgress::Shared()), written);
        const Files files = filesIn(directory.path());
        QCOMPARE(files.keys(), expected.keys());
        for (auto it = files.begin(); it != files.end(); ++it)
            QCOMPARE(it.value(), expected.value(it.key()));
    }
    QTemporaryFile inTheWay;
    QVERIFY(inTheWay.open());
    const QString nowhere = inTheWay.fileName() + QStringLiteral("/out");
    QCOMPARE(write(study, nowhere, NoProgress::Shared()), failed);
}

// Neither a stop nor a file that cannot take its place at the end touches what was there.
void TestLabelFiles::keepsOldFiles()
{
    QFETCH(Write, write);
    QFETCH(Files, expected);
    const OrdinaryUser user;
    const Study study(
        {QStringLiteral("Walk"), QStringLiteral("r\u00e9st"), QStringLiteral("Walk")});
    const QTemporaryDir directory;
    const QString path = directory.filePath(QStringLiteral("out"));
    Files old = expected;
    for (auto it = old.begin(); it != old.end(); ++it) {
        it.value() = "old";
        const QFileInfo info(directory.filePath(it.key()));
        QVERIFY(QDir().mkpath(info.path()));
        QFile file(info.filePath());
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write("old") == 3);
    }
    ScriptedProgress stop([](int) { return true; });
    QCOMPARE(write(study, path, stop), stopped);
    QCOMPARE(filesIn(directory.path()), old);
    ScriptedProgress lock([&](int) {
        setWritable(directory.path(), false);
        return false;
    });
    QCOMPARE(write(study, path, lock), failed);
    setWritable(directory.path(), true);
    QCOMPARE(filesIn(directory.path()), old);
}

void TestLabelFiles::refusesNames()
{
    const QString nul(QChar(QChar::Null));
    for (const QString& name : {QStringLiteral("../evil"), QStringLiteral(".."), QString(), nul}) {
        const Study study({QStringLiteral("first"), name, QStringLiteral("later")});
        const QTemporaryDir directory;
        const QString path = directory.filePath(QStringLiteral("out"));
        QVERIFY(QDir().mkpath(path));
        for (const auto write : {&LabelWriter::WriteCombined, &LabelWriter::WriteSeparateFiles})
            QCOMPARE(labelWriter(write)(study, path, NoProgress::Shared()), failed);
        const QStringList names{QStringLiteral("out/first.txt"),
                                QStringLiteral("out/first/cut0.txt"),
                                QStringLiteral("out/first/cut1.txt")};
        QCOMPARE(filesIn(directory.path()).keys(), names);
    }
}

void TestLabelFiles::refusesWithoutData()
{
    const Study study({QString(), QString(), QString()});
    const QTemporaryDir directory;
    const QString path = directory.filePath(QStringLiteral("out"));
    const QString invalid = QStringLiteral("Label collection or data set is invalid");
    LabelWriter labels(path);
    QVERIFY(!labels.WriteProject(&study.m_Labels));
    QCOMPARE(labels.GetError(), invalid);
    labels.SetDataSet(study.m_Data.get());
    QVERIFY(!labels.WriteLabel(nullptr));
    QVERIFY(!labels.WriteSummary(&study.m_Labels, -1));
    QVERIFY(!labels.WriteSummary(&study.m_Labels, 2));
    QVERIFY(!labels.GetError().isEmpty() && labels.GetError() != invalid);
    QVERIFY(filesIn(directory.path()).isEmpty());
    QVERIFY(labels.WriteProject(&study.m_Labels));
    QCOMPARE(labels.GetError(), QString());
}

void TestLabelFiles::projectComesBack()
{
    // One row earlier, in lower case, without the segment at row 0 and the name with a comma.
    const Study study({QStringLiteral("Walk"), QStringLiteral("r\u00c9st"), QStringLiteral("a,b")});
    const QTemporaryDir directory;
    const QString path = directory.filePath(QStringLiteral("out"));
    QCOMPARE(labelWriter(&LabelWriter::WriteProject)(study, path, NoProgress::Shared()), written);
    GroundTruithReader reader(path);
    reader.SetDataSet(study.m_Data.get());
    QVERIFY(reader.ReadFile());
    const auto collection = reader.TakeCollection();
    QCOMPARE(collection->Names(),
             QStringList({QStringLiteral("walk"), QStringLiteral("r\u00e9st")}));
    const auto walks = *collection->Get(QStringLiteral("walk"));
    const auto rests = *collection->Get(QStringLiteral("r\u00e9st"));
    QCOMPARE(QPoint(walks.size(), rests.size()), QPoint(1, 1));
    QCOMPARE(QPoint(walks[0]->GetFrom(), walks[0]->GetTo()), QPoint(4, 4));
    QCOMPARE(QPoint(rests[0]->GetFrom(), rests[0]->GetTo()), QPoint(2, 4));
}

QTEST_GUILESS_MAIN(TestLabelFiles)
#include "tst_labelfiles.moc"
