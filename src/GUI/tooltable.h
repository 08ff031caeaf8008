#pragma once

#include "tool.h"
#include <vector>

class LabeledDataTabWidget;
class MainWindow;
class ResultWidget;

/// The windows that tools act in.
struct ToolPlaces {
    MainWindow* m_Window;
    ResultWidget* m_Results;
    LabeledDataTabWidget* m_Labels;
};

/// All tools of the program, in the order of its menus. Those that act on a recording do nothing
/// without one.
std::vector<Tool> MakeTools(const ToolPlaces& places);
