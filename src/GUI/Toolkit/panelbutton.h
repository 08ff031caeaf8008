#pragma once

#include <QString>

class QPushButton;

/// A button for a row below or above a panel, without a parent. It can get as narrow as its icon
/// and text where the style would keep it wider. icon: a path as for ResourcePath, or none.
QPushButton* MakePanelButton(const QString& text, const QString& toolTip,
                             const QString& icon = QString());
