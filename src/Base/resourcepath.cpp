#include "resourcepath.h"

#include <QCoreApplication>
#include <QFileInfo>

QString ResourcePath(const QString& name)
{
    if (QFileInfo::exists(name))
        return name;
    const QString program = QCoreApplication::applicationDirPath();
    for (const QString& folder :
         {program, QString(program + QStringLiteral("/../share/skerrymoor"))}) {
        QString path = folder + QLatin1Char('/') + name;
        if (QFileInfo::exists(path))
            return path;
    }
    return name;
}
