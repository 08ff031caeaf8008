#pragma once

#include <QColor>
#include <array>

/// The colour of the index-th group of labels; after sixteen they start again. The last two are
/// invalid colours, which painters take as black.
inline QColor GroupColor(int index)
{
    static const std::array<QColor, 16> palette{
        Qt::red,      Qt::green,     Qt::black,   Qt::darkRed,     Qt::darkBlue,   Qt::darkGreen,
        Qt::cyan,     Qt::darkCyan,  Qt::magenta, Qt::darkMagenta, Qt::darkYellow, Qt::gray,
        Qt::darkGray, Qt::lightGray, QColor(),    QColor()};
    return palette[size_t(index) % palette.size()];
}
