#pragma once

class DataSet;
class QComboBox;
class QString;

/// A box of all attributes, whose indices are theirs; empty without a data set.
QComboBox* MakeAttributeBox(const DataSet* dataSet, const QString& toolTip);
