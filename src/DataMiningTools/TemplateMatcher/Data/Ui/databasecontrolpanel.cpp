#include "databasecontrolpanel.h"

#include "addcollectionform.h"
#include "askuser.h"
#include "databasemessages.h"
#include "databasequery.h"
#include "modaldialog.h"
#include "templatedetails.h"
#include "templaterows.h"
#include "usererror.h"
#include "viewpatternform.h"
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

DatabaseControlPanel::DatabaseControlPanel(QWidget* parent)
    : QDialog(parent), m_Collections(makeCollections()), m_Patterns(makePatterns()),
      m_Details(new TemplateDetails)
{
    setWindowTitle(tr("Template Database"));
    auto* lists = new QHBoxLayout;
    lists->addWidget(m_Collections, 1);
    lists->addWidget(m_Patterns, 1);
    auto* close = new QPushButton(tr("Close"));
    close->setDefault(true);
    connect(close, &QPushButton::clicked, this, &QDialog::reject);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(new QLabel(tr("<h2>Database Control Panel</h2>")));
    layout->addLayout(lists, 1);
    layout->addWidget(m_Details);
    layout->addWidget(close, 0, Qt::AlignRight);
    resize(820, 480);
    populateListWidget();
    SelectNewestPattern(*m_Collections, *m_Patterns);
    m_Collections->setFocus();
}

RowList* DatabaseControlPanel::makeCollections()
{
    auto* list = new RowList(tr("Collections"));
    const auto* add =
        list->AddButton(tr("Add"), tr("Make a new collection"), QStringLiteral("icons/add.png"));
    const auto* edit = list->AddRowButton(tr("Edit"), tr("Change name and description"),
                                          QStringLiteral("icons/edit.png"));
    const auto* remove =
        list->AddRowButton(tr("Delete"), tr("Delete the collection and all its patterns for good"),
                           QStringLiteral("icons/trash.png"));
    connect(list, &RowList::RowChosen, this, &DatabaseControlPanel::populatePatternsList);
    connect(add, &QPushButton::clicked, this, &DatabaseControlPanel::addCollection);
    connect(edit, &QPushButton::clicked, this, &DatabaseControlPanel::editCollection);
    connect(remove, &QPushButton::clicked, this, &DatabaseControlPanel::deleteCollection);
    return list;
}

RowList* DatabaseControlPanel::makePatterns()
{
    auto* list = new RowList(tr("Patterns"));
    const auto* view = list->AddRowButton(tr("View"), tr("Show the signals of the pattern"));
    const auto* rename = list->AddRowButton(tr("Rename"), tr("Give the pattern another name"),
                                            QStringLiteral("icons/edit.png"));
    const auto* remove =
        list->AddRowButton(tr("Delete"), tr("Delete the pattern and all its signals for good"),
                           QStringLiteral("icons/trash.png"));
    connect(list, &RowList::RowChosen, this, &DatabaseControlPanel::showDetails);
    connect(view, &QPushButton::clicked, this, &DatabaseControlPanel::viewPattern);
    connect(rename, &QPushButton::clicked, this, &DatabaseControlPanel::renamePattern);
    connect(remove, &QPushButton::clicked, this, &DatabaseControlPanel::deletePattern);
    return list;
}

void DatabaseControlPanel::populateListWidget()
{
    QVector<RowList::Row> rows;
    if (!ReadCollectionRows(this, rows))
        return;
    m_Collections->SetRows(rows);
    populatePatternsList(m_Collections->GetCurrentItem());
}

void DatabaseControlPanel::populatePatternsList(QListWidgetItem* collection)
{
    m_Patterns->SetRows(ReadPatternRows(this, collection));
    showDetails();
}

void DatabaseControlPanel::showDetails()
{
    m_Details->ShowPattern(m_Patterns->GetCurrentId());
}

void DatabaseControlPanel::addCollection()
{
    ModalDialog<AddCollectionForm> form(nullptr, this);
    form->setWindowTitle(tr("Add Collection"));
    connect(form.Get(), &QDialog::accepted, this, &DatabaseControlPanel::populateListWidget);
    if (form.IsAccepted())
        m_Collections->SetCurrentId(form->GetCollectionId());
}

void DatabaseControlPanel::editCollection()
{
    const int id = m_Collections->GetCurrentId();
    if (id == -1)
        return;
    std::unique_ptr<CollectionsDataObject> stored(CollectionsDataObject::GetCollection(id, false));
    if (!stored) {
        ShowDatabaseError(this, tr("Error: The collection can't be read."));
        return;
    }
    ModalDialog<AddCollectionForm> form(std::move(stored), this);
    form->setWindowTitle(tr("Edit Collection"));
    connect(form.Get(), &QDialog::accepted, this, &DatabaseControlPanel::populateListWidget);
    form.Run();
}

void DatabaseControlPanel::deleteCollection()
{
    if (DeleteCurrentRow(*m_Collections, &CollectionsDataObject::DeleteCollection,
                         tr("Delete the collection \"%1\" and all its patterns?"),
                         tr("Collection Deleted"), tr("Collection succesfully deleted")))
        populateListWidget();
}

void DatabaseControlPanel::viewPattern()
{
    const int id = m_Patterns->GetCurrentId();
    if (id == -1)
        return;
    std::unique_ptr<PatternsDataObject> pattern(PatternsDataObject::GetPattern(id, false));
    if (!pattern) {
        ShowDatabaseError(this, tr("Error: The pattern can't be read."));
        return;
    }
    const QPointer<DatabaseControlPanel> self(this);
    ModalDialog<ViewPatternForm>(std::move(pattern), this).Run();
    if (self)
        populatePatternsList(m_Collections->GetCurrentItem());
}

void DatabaseControlPanel::deletePattern()
{
    if (DeleteCurrentRow(*m_Patterns, &PatternsDataObject::DeletePattern,
                         tr("Delete the pattern \"%1\" and all its signals?"),
                         tr("Pattern Deleted"), tr("Pattern succesfully deleted")))
        populatePatternsList(m_Collections->GetCurrentItem());
}

void DatabaseControlPanel::renamePattern()
{
    const int id = m_Patterns->GetCurrentId();
    if (id == -1)
        return;
    const QPointer<DatabaseControlPanel> self(this);
    const auto name =
        AskText(this, tr("Rename Pattern"), tr("Name:"), m_Patterns->GetCurrentItem()->text());
    if (!self || !name)
        return;
    if (name->trimmed().isEmpty())
        ShowUserError(this, tr("Error"), tr("Error: No name entered"));
    else if (!PatternsDataObject::RenamePattern(id, name->trimmed()))
        ShowDatabaseError(this, tr("Error: The pattern was not renamed."));
    else
        populatePatternsList(m_Collections->GetCurrentItem());
}

void ShowTemplateDatabase(const SharedRecording&, QWidget* parent)
{
    ModalDialog<DatabaseControlPanel>(parent).Run();
}
