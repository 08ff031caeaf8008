#pragma once

#include <QString>

class Guide;
class MainWindow;

/// From the empty window to a recording in the program: file, settings, preview, column names.
void AddImportChapter(Guide& guide, MainWindow& window, const QString& recording);

/// Three attributes on the graph; zoom, scroll, selection, cuts; axes and the data table.
void AddGraphChapter(Guide& guide, MainWindow& window);
