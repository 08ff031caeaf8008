#include "panelbutton.h"

#include "resourcepath.h"
#include <QIcon>
#include <QPushButton>

QPushButton* MakePanelButton(const QString& text, const QString& toolTip, const QString& icon)
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
