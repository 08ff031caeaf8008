#pragma once

#include <QDialog>
#include <QHash>

class DataSet;
class PatternsDataObject;
class QComboBox;
class QFormLayout;

/// Matches the attribute names of a stored template to the columns of a data set. Only the first
/// pattern is looked at: each name of its first signal collection has a row, and behind them those
/// that only other collections have. A name that the data set lacks is marked, and stands for no
/// column until the user chooses one.
class AttributeMatchDialog : public QDialog
{
    Q_OBJECT
public:
    AttributeMatchDialog(const QList<PatternsDataObject*>& patterns, DataSet* dataSet,
                         QWidget* parent = nullptr);

    /// From template attribute name to the chosen attribute's index; after acceptance it holds all
    /// names.
    QHash<QString, int> GetAttributeMap() const;

public slots:
    /// Refuses, with a message, while a name stands for no column.
    void accept() override;

private:
    QWidget* makeForm(const QStringList& names, const DataSet* dataSet);
    void addChoice(QFormLayout* form, const QString& name, const DataSet* dataSet);

    QStringList m_Names;
    QHash<QString, QComboBox*> m_Choices;
};
