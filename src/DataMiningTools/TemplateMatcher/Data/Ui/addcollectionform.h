#pragma once

#include "collectionsdataobject.h"
#include <QDialog>
#include <memory>

class QLineEdit;

/// Asks for the name and description of a collection of templates and stores them.
class AddCollectionForm : public QDialog
{
    Q_OBJECT
public:
    /// collection: the stored one to change; null for a new one.
    explicit AddCollectionForm(std::unique_ptr<CollectionsDataObject> collection = nullptr,
                               QWidget* parent = nullptr);

    /// Of the collection that is stored; -1 before.
    int GetCollectionId() const { return m_Collection->GetId(); }

public slots:
    /// Stores the collection and accepts, or tells the user why not.
    void save();
    void accept() override { save(); }

private:
    std::unique_ptr<CollectionsDataObject> m_Collection;
    QLineEdit* m_Name;
    QLineEdit* m_Desc;
};
