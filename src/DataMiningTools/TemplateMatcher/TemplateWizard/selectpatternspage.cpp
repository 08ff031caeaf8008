#include "selectpatternspage.h"

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

SelectPatternsPage::SelectPatternsPage(QList<int>* patternIds, QWidget* parent)
    : QWizardPage(parent), m_PatternIds(patternIds), m_Collections(new RowList(tr("Collections"))),
      m_Patterns(new RowList(tr("Patterns"))), m_ChosenPatterns(new RowList(tr("Chosen Patterns")))
{
    setTitle(tr("Select Patterns"));
    setSubTitle(tr("The first of the chosen patterns is searched."));
    const auto* apply = m_Patterns->AddRowButton(tr("Apply Pattern"), tr("Choose the pattern"));
    const auto* remove =
        m_ChosenPatterns->AddRowButton(tr("Remove Pattern"), tr("Choose the pattern no longer"));
    connect(m_Collections, &RowList::RowChosen, this, &SelectPatternsPage::populatePatternsList);
    connect(apply, &QPushButton::clicked, this, &SelectPatternsPage::addTemplate);
    connect(remove, &QPushButton::clicked, this, &SelectPatternsPage::removeTemplate);
    auto* layout = new QHBoxLayout(this);
    for (RowList* list : {m_Collections, m_Patterns, m_ChosenPatterns})
        layout->addWidget(list, 1);
}

void SelectPatternsPage::initializePage()
{
    populateCollections();
    populatePatternsList(m_Collections->GetCurrentItem());
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
}

void SelectPatternsPage::addTemplate()
{
    const int row = findRow(m_Rows, m_Patterns->GetCurrentId());
    if (row == -1)
        return;
    m_ChosenRows.append(m_Rows[row]);
    showRows();
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
