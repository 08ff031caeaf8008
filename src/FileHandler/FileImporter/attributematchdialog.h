#pragma once

#include <QDialog>
#include <QHash>

class DataSet;
class PatternsDataObject;
class QComboBox;

/// Matches the attribute names of a stored template to the columns of a data set. Only the first
/// pattern's first signal collection is looked at: all others hold the same attributes.
class AttributeMatchDialog : public QDialog
{
    Q_OBJECT
public:
    AttributeMatchDialog(const QList<PatternsDataObject*>& patterns, DataSet* dataSet,
                         QWidget* parent = nullptr);

    /// From template attribute name to the chosen attribute's index.
    QHash<QString, int> GetAttributeMap() const;

private:
    QWidget* makeForm(const QStringList& names, const DataSet* dataSet);

    QHash<QString, QComboBox*> m_Choices;
};
