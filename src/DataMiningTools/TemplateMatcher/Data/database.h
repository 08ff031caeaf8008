#pragma once

#include <QSqlError>

/// Opens the template database beside the settings file, on the default connection, and makes
/// its tables and the first collection when they are not there. A value of type NoError means
/// ready; else its text names the file or folder and the reason, and the file is as it was. May
/// be called again: the connection is then opened anew.
QSqlError InitializeDatabase();
