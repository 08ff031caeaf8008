#pragma once

#include <QString>

/// The path of a file that comes with the program, given as "icons/..." or "resources/...":
/// looked up in the working directory first, then beside the program, then in its installed
/// share folder. The name itself when it is nowhere.
QString ResourcePath(const QString& name);
