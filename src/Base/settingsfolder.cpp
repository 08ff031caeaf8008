#include "settingsfolder.h"

#include <QFileInfo>
#include <QSettings>

QString SettingsFolder()
{
    // The settings file itself is neither read nor written.
    const QSettings settings(QSettings::IniFormat, QSettings::UserScope,
                             QStringLiteral("Skerrymoor"), QStringLiteral("Skerrymoor"));
    return QFileInfo(settings.fileName()).absolutePath() + QLatin1Char('/');
}
