#pragma once

#include "resourcepath.h"
#include <QIcon>
#include <QPushButton>

/// A button for a row below or above a panel, without a parent. It can get as narrow as its icon
/// and text where the style would keep it wider. icon: a path as for ResourcePath, or none.
inline QPushButton* MakePanelButton(const QString& text, const QString& toolTip,
                                    const QString& icon = QString())
{
    constexpr int frame = 14;
    auto* button = new QPushButton(text);
    button->setToolTip(toolTip);
    int width = button->fontMetrics().horizontalAdvance(text) + frame;
    if (!icon.isEmpty()) {
        button->setIcon(QIcon(ResourcePath(icon)));
        width += button->iconSize().width() + 4;
    }
    button->setMinimumWidth(width);
    return button;
}
