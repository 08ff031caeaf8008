#pragma once

#include <QColor>

/// The colour of the index-th group of labels; after sixteen they start again. The last two are
/// invalid and paint nothing of their own.
QColor GroupColor(int index);
