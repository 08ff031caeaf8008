#pragma once

class DataSet;
class QWidget;

/// Asks for an attribute to export; -1 when the user cancels.
int AskAttribute(QWidget* parent, const DataSet& data);
