#include "selectpatternspage.h"

#include "templatedetails.h"
#include "templaterows.h"
#include "usererror.h"
#include <QPushButton>
#include <QVBoxLayout>
#include <algorithm>

namespace
{

// -1 when there is none.
int findRow(const QVector<RowList::Row>& rows, int id)
{
    const auto found = std::find_if(rows.begin(), rows.end(),
                                    [id](const RowList::Row& row) { return row.m_Id == id; });
    return found == rows.end() ? -1 : int(found - rows.begin());
}

} // namespace

SelectPatternsPage::SelectPatternsPage(QList<int>* patternIds, const DataSet* dataSet,
                                       QWidget* parent)
    : QWizardPage(parent), m_PatternIds(patternIds), m_DataSet(dataSet),
      m_Collections(new RowList(tr("Collections"))), m_Patterns(new RowList(tr("Patterns"))),
      m_ChosenPatterns(new RowList(tr("Chosen Patterns"))), m_Details(new TemplateDetails)
{
    setTitle(tr("Select Patterns"));
    setSubTitle(tr("The first of the chosen patterns is searched."));
    const auto* apply = m_Patterns->AddRowButton(tr("Apply Pattern"), tr("Choose the pattern"));
    const auto* remove =
        m_ChosenPatterns->AddRowButton(tr("Remove Pattern"), tr("Choose the pattern no longer"));
    connect(m_Collections, &RowList::RowChosen, this, &SelectPatternsPage::populatePatternsList);
    connect(apply, &QPushButton::clicked, this, &SelectPatternsPage::addTemplate);
    connect(remove, &QPushButton::clicked, this, &SelectPatternsPage::removeTemplate);
    auto* lists = new QHBoxLayout;
    for (RowList* list : {m_Collections, m_Patterns, m_ChosenPatterns})
        lists->addWidget(list, 1);
    for (RowList* list : {m_Patterns, m_ChosenPatterns})
        connect(list, &RowList::RowChosen, this, &SelectPatternsPage::showDetails);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(lists, 1);
    layout->addWidget(m_Details);
}

void SelectPatternsPage::initializePage()
{
    populateCollections();
    populatePatternsList(m_Collections->GetCurrentItem());
    SelectNewestPattern(*m_Collections, *m_Patterns);
}

void SelectPatternsPage::populateCollections()
{
    QVector<RowList::Row> rows;
    ReadCollectionRows(this, rows);
    m_Collections->SetRows(rows);
}

void SelectPatternsPage::populatePatternsList(QListWidgetItem* collection)
{
    m_Rows = ReadPatternRows(this, collection);
    showRows();
}

void SelectPatternsPage::showRows()
{
    QVector<RowList::Row> rows;
    std::copy_if(m_Rows.begin(), m_Rows.end(), std::back_inserter(rows),
                 [this](const auto& row) { return findRow(m_ChosenRows, row.m_Id) == -1; });
    m_Patterns->SetRows(rows);
    m_ChosenPatterns->SetRows(m_ChosenRows);
    showDetails(m_Patterns->GetCurrentItem());
}

void SelectPatternsPage::showDetails(const QListWidgetItem* pattern)
{
    m_Details->ShowPattern(RowList::GetId(pattern), m_DataSet);
}

void SelectPatternsPage::addTemplate()
{
    const int row = findRow(m_Rows, m_Patterns->GetCurrentId());
    if (row == -1)
        return;
    const RowList::Row chosen = m_Rows[row];
    m_ChosenRows.append(chosen);
    showRows();
    m_ChosenPatterns->SetCurrentId(chosen.m_Id);
    showDetails(m_ChosenPatterns->GetCurrentItem());
}

void SelectPatternsPage::removeTemplate()
{
    const int row = findRow(m_ChosenRows, m_ChosenPatterns->GetCurrentId());
    if (row == -1)
        return;
    m_ChosenRows.remove(row);
    showRows();
}

bool SelectPatternsPage::validatePage()
{
    m_PatternIds->clear();
    for (const RowList::Row& row : qAsConst(m_ChosenRows))
        m_PatternIds->append(row.m_Id);
    if (!m_PatternIds->isEmpty())
        return true;
    ShowUserError(this, tr("Error"), tr("Error: No pattern selected"));
    return false;
}
