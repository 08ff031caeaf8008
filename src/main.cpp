#include "applicationinfo.h"
#include "colormaps.h"
#include "database.h"
#include "mainwindow.h"
#include "resourcepath.h"
#include <QApplication>
#include <QIcon>
#include <cstdio>

int main(int argc, char* argv[])
{
    QApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    QApplication::setHighDpiScaleFactorRoundingPolicy(
        Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
    QApplication application(argc, argv);
    QApplication::setApplicationName(ApplicationName());
    QApplication::setWindowIcon(QIcon(ResourcePath(QStringLiteral("icons/skerrymoor.png"))));
    ColorMaps::InitColorMaps();

    MainWindow window;
    window.show();
    const QSqlError error = InitializeDatabase();
    if (error.isValid()) {
        // Straight to standard error: a log may go elsewhere.
        std::fprintf(stderr, "Error: %s\n", qPrintable(error.text()));
        return 1;
    }
    return QApplication::exec();
}
