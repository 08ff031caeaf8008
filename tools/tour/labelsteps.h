#pragma once

#include <QString>

class Guide;
class MainWindow;
class QTabWidget;

/// The tabs of the behaviours.
QTabWidget* BehaviorTabs(const MainWindow& window);

/// Adds a behaviour with its dialog.
void AddGroupSteps(Guide& guide, MainWindow& window, const QString& name, const QString& picture);

/// Answers the question for a behaviour, once it comes.
void AddBehaviorChoiceStep(Guide& guide, const QString& behavior);
