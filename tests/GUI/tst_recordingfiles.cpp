#include "dataset.h"
#include "liverecording.h"
#include "modalscript.h"
#include "recordingfiles.h"
#include "segmenttext.h"
#include "testdata.h"
#include <QComboBox>
#include <QInputDialog>
#include <QMessageBox>
#include <QTemporaryDir>
#include <QtTest>

class TestRecordingFiles : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void cleanup();
    void savesData();
    void exportsLabels_data();
    void exportsLabels();
    void stopsWithoutAWord();
    void cancelsEveryQuestion();
    void importsProject();
    void passesOverBadProjects();

private:
    QString path(const char* name) const { return m_Folder->filePath(QLatin1String(name)); }
    QByteArray text(const char* name) const;
    void write(const char* name, const QByteArray& text) const;
    void importLabels();
    static void choose(ModalScript& user, int item);

    std::unique_ptr<QTemporaryDir> m_Folder;
    std::unique_ptr<LiveRecording> m_Recording;
    RecordingFiles m_Files{nullptr};
};

// Rows 4 to 6 of ten are labelled.
void TestRecordingFiles::init()
{
    m_Folder = std::make_unique<QTemporaryDir>();
    m_Recording = std::make_unique<LiveRecording>(
        MakeDataSet(QByteArray("1 2\n").repeated(10), {QStringLiteral("x"), QStringLiteral("x")}));
    auto* walk = new BehaviorLabel(QStringLiteral("walk"), Qt::red);
    m_Recording->GetLabelCollection()->AddLabel(walk);
    LabelSegment(*walk, m_Recording->GetCutCollection()->InsertCut(4, 7, CutSegment::SEGMENT_CUT));
}

void TestRecordingFiles::cleanup()
{
    QCOMPARE(TakeUserErrors(), QStringList());
}

QByteArray TestRecordingFiles::text(const char* name) const
{
    QFile file(path(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("no file");
}

void TestRecordingFiles::write(const char* name, const QByteArray& text) const
{
    QFile file(path(name));
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(text) == text.size());
}

void TestRecordingFiles::choose(ModalScript& user, int item)
{
    user.On<QInputDialog>([item](QInputDialog* dialog) {
        dialog->findChild<QComboBox*>()->setCurrentIndex(item);
        dialog->accept();
    });
}

void TestRecordingFiles::savesData()
{
    const QByteArray expected = "x,x\n" + QByteArray("1,2\n").repeated(10);
    ModalScript user;
    user.PickFile(path("data"));
    user.On<QMessageBox>([](QMessageBox* box) {
        QCOMPARE(box->windowTitle(), QStringLiteral("Success"));
        QCOMPARE(box->text(), QStringLiteral("File exported successfully"));
        box->accept();
    });
    m_Files.SaveDataFile(m_Recording.get());
    QCOMPARE(text("data.csv"), expected);

    user.PickFile(path("nowhere/data.csv"));
    m_Files.SaveDataFile(m_Recording.get());
    QCOMPARE(TakeUserErrors(), QStringList(QStringLiteral(
                                   "Error writing file: Error writing file: Unable to open file")));
}

void TestRecordingFiles::exportsLabels_data()
{
    QTest::addColumn<int>("format");
    QTest::addColumn<QString>("target");
    QTest::addColumn<QString>("file");
    QTest::addColumn<QByteArray>("start");
    QTest::newRow("project") << -1 << "p"
                             << "p.thm" << QByteArray("walk,4,7\n");
    // The second of two attributes of one name: values of 2.
    QTest::newRow("summary") << 0 << "s"
                             << "s.csv"
                             << QByteArray("Name:,walk\nNumber instances:,1\n"
                                           "Total Duration (Data Rows):,3\n"
                                           "Data length:,3, Number Instances:, 1\n"
                                           "Time From, Time To, Data Row From, Data Row To, "
                                           "Data Length, Max x, Min x, Mean x, Standard Deviation "
                                           "x\n5,8,4,7,3,2,2,2,0\n");
    QTest::newRow("separate") << 1 << ""
                              << "walk/cut0.txt" << QByteArray("Time \tx\tx\t\n5\t1\t2\t\n");
    QTest::newRow("combined") << 2 << ""
                              << "walk.txt" << QByteArray("Time \tx\tx\t\n5\t1\t2\t\n");
    QTest::newRow("aligned") << 3 << "a"
                             << "a.csv" << QByteArray("Time,x,x,Behavior\n1,1,2,-1\n");
}

void TestRecordingFiles::exportsLabels()
{
    QFETCH(int, format);
    QFETCH(QString, target);
    QFETCH(QString, file);
    QFETCH(QByteArray, start);
    for (const bool isWritable : {true, false}) {
        ModalScript user;
        if (format >= 0)
            choose(user, format);
        // A folder where the file should go can't be written over.
        if (!isWritable && !target.isEmpty())
            target = QStringLiteral("nowhere/file");
        else if (!isWritable)
            m_Recording->GetLabelCollection()->GetLabel(0)->SetName(QStringLiteral("a/b"));
        user.PickFile(m_Folder->filePath(target));
        if (format == 0)
            choose(user, 1);
        if (format >= 0)
            m_Files.ExportSummaryLabels(m_Recording.get());
        else
            m_Files.ExportProject(m_Recording.get());
        const QStringList errors = TakeUserErrors();
        if (isWritable)
            QVERIFY2(text(qPrintable(file)).startsWith(start), text(qPrintable(file)));
        QCOMPARE(errors, isWritable ? QStringList()
                                    : QStringList(QStringLiteral("Error writing label collection: "
                                                                 "Error: Unable to open file")));
    }
}

// Exports that take long have a Cancel button, after which there is neither a file nor a box.
void TestRecordingFiles::stopsWithoutAWord()
{
    auto data = std::make_unique<DataSet>();
    data->AddColumn(QStringLiteral("x"), ATTRIBUTE_OTHER, DataColumn(20'000'000, 0.123456789));
    LiveRecording recording(std::move(data));
    ModalScript user;
    user.PickFile(path("data.csv"));
    user.StopWork();
    m_Files.SaveDataFile(&recording);
    choose(user, 3);
    user.PickFile(path("aligned.csv"));
    user.StopWork();
    m_Files.ExportSummaryLabels(&recording);
    QCOMPARE(QDir(m_Folder->path()).entryList(QDir::Files | QDir::Hidden), QStringList());
}

void TestRecordingFiles::cancelsEveryQuestion()
{
    {
        ModalScript user;
        for (int i = 0; i < 3; ++i)
            user.Then([](QDialog* dialog) { dialog->reject(); });
        m_Files.SaveDataFile(m_Recording.get());
        m_Files.ExportProject(m_Recording.get());
        m_Files.ExportSummaryLabels(m_Recording.get());
    }
    {
        ModalScript user;
        choose(user, 0);
        user.PickFile(path("summary.csv"));
        user.Then([](QDialog* dialog) { dialog->reject(); });
        m_Files.ExportSummaryLabels(m_Recording.get());
    }
    m_Files.SaveDataFile(nullptr);
    m_Files.ExportProject(nullptr);
    m_Files.ExportSummaryLabels(nullptr);
    m_Files.ImportLabels(nullptr);
    QVERIFY(QDir(m_Folder->path()).isEmpty());
}

void TestRecordingFiles::importLabels()
{
    ModalScript user;
    user.PickFile(path("labels.thm"));
    m_Files.ImportLabels(m_Recording.get());
}

void TestRecordingFiles::importsProject()
{
    QSignalSpy told(m_Recording.get(), &LiveRecording::LabelsChanged);
    // Row labels, so one row earlier; the second crosses the cut at row 4, the last has no end.
    write("labels.thm", "Rest,9,10\nrest,3,6\nWalk,1,2\nrest,1,99\n");
    importLabels();
    QCOMPARE(told.size(), 1);
    const LabelCollection& labels = *m_Recording->GetLabelCollection();
    QCOMPARE(labels.GetLabelCount(), 3);
    QCOMPARE(labels.GetLabel(1)->GetName(), QStringLiteral("rest"));
    QCOMPARE(labels.GetLabel(1)->GetInstanceCount(), 1);
    QCOMPARE(labels.GetLabel(1)->GetInstance(0)->GetSegment()->GetColor(), QColor(Qt::green));
    QCOMPARE(ToText(*m_Recording->GetCutCollection()),
             QStringLiteral("(0,0) L(0,1) (1,4) L(4,7) (7,8) L(8,9) (9,10)"));
}

void TestRecordingFiles::passesOverBadProjects()
{
    const QString before = ToText(*m_Recording->GetCutCollection());
    write("labels.thm", QByteArray("\0\xff,,\"", 5));
    importLabels();
    QCOMPARE(ToText(*m_Recording->GetCutCollection()), before);
    QCOMPARE(m_Recording->GetLabelCollection()->GetLabelCount(), 1);
}

QTEST_MAIN(TestRecordingFiles)
#include "tst_recordingfiles.moc"
