#pragma once

#include <QString>

class Guide;
class MainWindow;

/// From the empty window to a recording in the program: file, settings, preview, column names.
void AddImportChapter(Guide& guide, MainWindow& window, const QString& recording);

/// Three attributes on the graph; zoom, scroll, selection, cuts; axes and the data table.
void AddGraphChapter(Guide& guide, MainWindow& window);

/// Two behaviours; labels by the context menu and by drag and drop; a segment resized; labels
/// merged and restored.
void AddLabelChapter(Guide& guide, MainWindow& window);

/// Statistics, the project and the four label exports, written to folder.
void AddExportChapter(Guide& guide, MainWindow& window, const QString& folder);

/// Reads the project back over the same recording, imported anew.
void AddReimportChapter(Guide& guide, MainWindow& window, const QString& folder);

/// Static and dynamic acceleration, VeDBA, pitch and roll; cuts at the dives.
void AddDeriveChapter(Guide& guide, MainWindow& window);

/// Wing beats found by a template, dives by their depth, and what follows the dives by a rule.
/// Goes on from the recording read anew, with its two behaviours.
void AddSearchChapter(Guide& guide, MainWindow& window);
