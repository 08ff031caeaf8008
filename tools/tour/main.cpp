#include "chapters.h"
#include "guide.h"
#include "mainwindow.h"
#include <QApplication>
#include <QDir>
#include <QTextStream>

// tour FOLDER: takes the guided tour and leaves its pictures in FOLDER.
int main(int argc, char* argv[])
{
    QApplication application(argc, argv);
    if (argc != 2 || !QDir().mkpath(QString::fromLocal8Bit(argv[1]))) {
        QTextStream(stderr) << "usage: tour FOLDER\n";
        return 2;
    }
    // A copy in a place of no consequence: its path shows in the pictures.
    const QString folder = QDir::tempPath() + QStringLiteral("/recordings");
    const QString recording = folder + QStringLiteral("/recording.csv");
    const QString exports = folder + QStringLiteral("/exports");
    QDir(exports).removeRecursively();
    QDir().mkpath(exports);
    QFile::remove(recording);
    QFile::copy(QStringLiteral(TOUR_EXAMPLES "/recording.csv"), recording);

    MainWindow window;
    window.show();
    Guide guide(QDir(QString::fromLocal8Bit(argv[1])).absolutePath());
    AddImportChapter(guide, window, recording);
    AddGraphChapter(guide, window);
    AddLabelChapter(guide, window);
    AddExportChapter(guide, window, exports);
    AddImportChapter(guide, window, recording);
    AddReimportChapter(guide, window, exports);
    return guide.Run();
}
