#include "databasecontrolpanel.h"

#include "addcollectionform.h"
#include "askuser.h"
#include "databasemessages.h"
#include "databasequery.h"
#include "modaldialog.h"
#include "patternfile.h"
#include "templatedetails.h"
#include "templaterows.h"
#include "usererror.h"
#include "viewpatternform.h"
#include "waitcursor.h"
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace
{

QString fileFilter()
{
    return DatabaseControlPanel::tr("Templates (*.json)");
}

} // namespace

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
    const auto* exportAll =
        list->AddRowButton(tr("Export"), tr("Copy all templates of the collection to a file"),
                           QStringLiteral("icons/export.png"));
    const auto* import =
        list->AddRowButton(tr("Import"), tr("Add the templates of a file to the collection"),
                           QStringLiteral("icons/Folder3.png"));
    connect(list, &RowList::RowChosen, this, &DatabaseControlPanel::populatePatternsList);
    connect(exportAll, &QPushButton::clicked, this, &DatabaseControlPanel::exportCollection);
    connect(import, &QPushButton::clicked, this, &DatabaseControlPanel::importPatterns);
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
    const auto* exportOne = list->AddRowButton(tr("Export"), tr("Copy the template to a file"),
                                               QStringLiteral("icons/export.png"));
    connect(list, &RowList::RowChosen, this, &DatabaseControlPanel::showDetails);
    connect(view, &QPushButton::clicked, this, &DatabaseControlPanel::viewPattern);
    connect(rename, &QPushButton::clicked, this, &DatabaseControlPanel::renamePattern);
    connect(exportOne, &QPushButton::clicked, this, &DatabaseControlPanel::exportPattern);
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

void DatabaseControlPanel::exportCollection()
{
    if (!m_Collections->GetCurrentItem())
        return;
    QList<int> ids;
    for (const RowList::Row& row : ReadPatternRows(this, m_Collections->GetCurrentItem()))
        ids.append(row.m_Id);
    exportRows(ids, m_Collections->GetCurrentItem()->text());
}

void DatabaseControlPanel::exportPattern()
{
    if (m_Patterns->GetCurrentItem())
        exportRows({m_Patterns->GetCurrentId()}, m_Patterns->GetCurrentItem()->text());
}

void DatabaseControlPanel::exportRows(const QList<int>& ids, const QString& proposal)
{
    if (ids.isEmpty()) {
        ShowUserError(this, tr("Error"), tr("Error: The collection holds no patterns."));
        return;
    }
    const QPointer<DatabaseControlPanel> self(this);
    const QString path = AskSavePath(this, tr("Export Templates"), fileFilter(),
                                     QString(proposal).replace(QLatin1Char('/'), QLatin1Char('_')));
    if (!self || path.isEmpty())
        return;
    const WaitCursor wait;
    QString error;
    if (!PatternFile::Export(path, ids, error))
        ShowUserError(this, tr("Error"), error);
}

void DatabaseControlPanel::importPatterns()
{
    const int collection = m_Collections->GetCurrentId();
    if (collection == -1)
        return;
    const QPointer<DatabaseControlPanel> self(this);
    const QString path = AskOpenPath(this, tr("Import Templates"), fileFilter());
    if (self && !path.isEmpty())
        storeImported(path, collection);
}

void DatabaseControlPanel::storeImported(const QString& path, int collectionId)
{
    const WaitCursor wait;
    QString error;
    const PatternList patterns = PatternFile::Read(path, error);
    if (patterns.empty()) {
        ShowUserError(this, tr("Error"), error);
        return;
    }
    if (!PatternFile::Store(patterns, collectionId)) {
        ShowDatabaseError(this, tr("Error: The templates were not stored."));
        return;
    }
    populatePatternsList(m_Collections->GetCurrentItem());
    m_Patterns->SetCurrentId(patterns.back()->GetId());
}

void ShowTemplateDatabase(const SharedRecording&, QWidget* parent)
{
    ModalDialog<DatabaseControlPanel>(parent).Run();
}
