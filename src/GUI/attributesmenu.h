#pragma once

#include <QMenu>

class DataSet;

/// One checkable entry for each attribute of a data set, which asks to show or hide its plot.
/// The check marks are the entries' own; nobody keeps them in step with the plots.
class AttributesMenu : public QMenu
{
    Q_OBJECT
public:
    using QMenu::QMenu;

    /// Offers the attributes of a data set, unchecked; null offers none.
    void SetDataSet(const DataSet* dataSet);
    void AddAttribute(int index, const QString& name);

signals:
    void AttributeToggled(int index);
};
