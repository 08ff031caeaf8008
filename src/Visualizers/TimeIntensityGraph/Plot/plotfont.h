#pragma once

#include <QFont>

/// The font of axes and marks in plots: small enough for the margins, whatever font the desktop
/// has.
QFont PlotFont();
