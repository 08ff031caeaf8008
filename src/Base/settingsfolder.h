#pragma once

#include <QString>

/// The folder of the user's settings, with a slash at its end; it may not exist yet.
QString SettingsFolder();
