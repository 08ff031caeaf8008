#include "addcollectionform.h"

#include "askuser.h"
#include "databasemessages.h"
#include "dialogbuttons.h"
#include "usererror.h"
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>

AddCollectionForm::AddCollectionForm(std::unique_ptr<CollectionsDataObject> collection,
                                     QWidget* parent)
    : QDialog(parent), m_Collection(std::move(collection)), m_Name(new QLineEdit),
      m_Desc(new QLineEdit)
{
    if (!m_Collection)
        m_Collection = std::make_unique<CollectionsDataObject>();
    m_Name->setText(m_Collection->GetName());
    m_Name->selectAll();
    m_Desc->setText(m_Collection->GetDesc());
    m_Desc->setMinimumWidth(fontMetrics().averageCharWidth() * 40);
    auto* form = new QFormLayout;
    form->addRow(tr("Name:"), m_Name);
    form->addRow(tr("Description:"), m_Desc);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(new QLabel(tr("<b>New Collection</b>")));
    layout->addLayout(form);
    layout->addStretch();
    layout->addLayout(MakeDialogButtons(this, tr("Save")));
    m_Name->setFocus();
}

void AddCollectionForm::save()
{
    const QString name = m_Name->text().trimmed();
    if (name.isEmpty()) {
        ShowUserError(this, tr("Error"), tr("Error: No name entered"));
        m_Name->setFocus();
        return;
    }
    m_Collection->SetName(name);
    m_Collection->SetDesc(m_Desc->text().trimmed());
    const bool isNew = m_Collection->GetId() == -1;
    const bool isStored =
        isNew ? m_Collection->InsertCollection(false) != -1 : m_Collection->UpdateCollection();
    if (!isStored) {
        ShowDatabaseError(this, tr("Error: The collection was not stored."));
        return;
    }
    const QPointer<AddCollectionForm> self(this);
    if (isNew)
        TellUser(this, tr("Collection Added"), tr("Collection succesfully added"));
    else
        TellUser(this, tr("Collection Updated"), tr("Collection succesfully updated"));
    if (self)
        QDialog::accept();
}
