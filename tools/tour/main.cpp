#include "chapters.h"
#include "colormaps.h"
#include "database.h"
#include "guide.h"
#include "mainwindow.h"
#include <QApplication>
#include <QDir>
#include <QSettings>
#include <QTemporaryDir>
#include <QTextStream>
#include <cstdio>

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
    QDir().mkpath(folder);
    // Put there in one go: another tour may be under way.
    const QTemporaryDir aside(folder + QStringLiteral("/new-XXXXXX"));
    const QString copy = aside.filePath(QStringLiteral("recording.csv"));
    QFile::copy(QStringLiteral(TOUR_EXAMPLES "/recording.csv"), copy);
    std::rename(qPrintable(copy), qPrintable(recording));

    // Settings, templates and backups of its own: the tour leaves those of the user alone.
    const QTemporaryDir settings;
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, settings.path());
    const QSqlError error = InitializeDatabase();
    if (error.isValid()) {
        QTextStream(stderr) << error.text() << '\n';
        return 1;
    }

    ColorMaps::InitColorMaps();
    const QTemporaryDir exports;
    MainWindow window;
    window.show();
    Guide guide(QDir(QString::fromLocal8Bit(argv[1])).absolutePath());
    AddImportChapter(guide, window, recording);
    AddGraphChapter(guide, window);
    AddLabelChapter(guide, window);
    AddExportChapter(guide, window, exports.path());
    AddImportChapter(guide, window, recording);
    AddReimportChapter(guide, window, exports.path());
    AddDeriveChapter(guide, window);
    AddImportChapter(guide, window, recording);
    AddReimportChapter(guide, window, exports.path());
    AddSearchChapter(guide, window);
    return guide.Run();
}
