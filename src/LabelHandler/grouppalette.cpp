#include "grouppalette.h"

#include <array>

QColor GroupColor(int index)
{
    static const std::array<QColor, 16> palette{QColor(Qt::red),
                                                QColor(Qt::green),
                                                QColor(Qt::black),
                                                QColor(Qt::darkRed),
                                                QColor(Qt::darkBlue),
                                                QColor(Qt::darkGreen),
                                                QColor(Qt::cyan),
                                                QColor(Qt::darkCyan),
                                                QColor(Qt::magenta),
                                                QColor(Qt::darkMagenta),
                                                QColor(Qt::darkYellow),
                                                QColor(Qt::gray),
                                                QColor(Qt::darkGray),
                                                QColor(Qt::lightGray),
                                                QColor(),
                                                QColor()};
    return palette[size_t(index) % palette.size()];
}
