#pragma once

#include <QColor>

/// The colour of the index-th group of labels; after sixteen they start again. The last two are
/// invalid colours, which painters take as black.
QColor GroupColor(int index);
