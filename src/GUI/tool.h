#pragma once

#include "liverecording.h"
#include <QKeySequence>
#include <QString>
#include <functional>

class QWidget;

/// What is done with a recording, which is not null, from a window that becomes the parent of
/// dialogs. What a tool leaves open takes a share of the recording.
using RecordingFunction = void (*)(const SharedRecording& recording, QWidget* parent);

/// One thing that the user can have done: a row of the main window's table, from which menus, keys
/// and the command palette are made.
struct Tool {
    /// What has to be there for the tool to do anything.
    enum Condition {
        NOTHING,
        RECORDING,
        SELECTED_ROWS,    ///< a recording and a span of rows selected on its graph
        SELECTED_SEGMENT, ///< a recording and rows or a segment selected on its graph
        BEHAVIOR,         ///< a recording and a behaviour in front
    };
    /// Where the tool is offered beside the palette.
    enum Place {
        IN_MENU,        ///< greyed out where it needs a recording and there is none
        ALWAYS_IN_MENU, ///< never greyed out
        OUT_OF_MENU,    ///< an action that is complete, but stands in no menu
        PALETTE_ONLY    ///< no action: a button, a key or a context menu does it, or nothing else
    };

    /// The menu, "Tools" or "Tools/Automatic Cuts"; in front of the title in the palette.
    QString m_Menu;
    QString m_Title;
    const char* m_Icon = nullptr;
    Condition m_Condition = NOTHING;
    Place m_Place = IN_MENU;
    std::function<void()> m_Run;
    QKeySequence m_Keys = {};
    /// What the tool goes by among those of its menu, for menus of numbered entries; else -1.
    int m_Number = -1;
};
