#include "searchfilterpage.h"

#include "matchplot.h"
#include <QAbstractSpinBox>
#include <QComboBox>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

SearchFilterPage::SearchFilterPage(const QString& resultsTitle, DataSet* dataSet, QWidget* parent)
    : QWizardPage(parent), m_Number(new QLabel(tr("No results extracted"))),
      m_Results(new MatchPlot(resultsTitle, dataSet))
{
    connect(m_Results, &MatchPlot::MatchesChanged, this, &SearchFilterPage::showNumber);
}

void SearchFilterPage::layOut(QWidget* fields)
{
    m_Fields = fields;
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(fields);
    layout->addWidget(m_Results, 1);
}

QLayout* SearchFilterPage::makeExtractRow()
{
    auto* extract = new QPushButton(tr("Extract Results"));
    extract->setToolTip(tr("Search and show the matches"));
    connect(extract, &QPushButton::clicked, this, &SearchFilterPage::extractMatches);
    auto* row = new QHBoxLayout;
    row->addWidget(extract);
    row->addWidget(m_Number);
    row->addStretch();
    return row;
}

const SearchMatches& SearchFilterPage::GetMatches() const
{
    return m_Results->GetMatches();
}

void SearchFilterPage::showMatches(const SearchMatches& matches)
{
    m_Results->SetMatches(matches);
    m_HasRun = true;
    m_FieldsSearched = getFields();
    showNumber();
    emit completeChanged();
}

QStringList SearchFilterPage::getFields() const
{
    QStringList fields;
    // A row that was taken away is hidden before it is deleted.
    for (const auto* box : m_Fields->findChildren<QComboBox*>())
        fields.append(box->isVisibleTo(m_Fields) ? box->currentText() : QString());
    for (const auto* box : m_Fields->findChildren<QAbstractSpinBox*>())
        fields.append(box->isVisibleTo(m_Fields) ? box->text() : QString());
    fields.removeAll(QString());
    return fields;
}

// A spin box tells of a change also when Enter has changed nothing.
void SearchFilterPage::dropMatches()
{
    if (!m_HasRun || getFields() == m_FieldsSearched)
        return;
    m_Results->SetMatches({});
    m_HasRun = false;
    m_Number->setText(tr("No results extracted: the search has changed"));
    emit completeChanged();
}

void SearchFilterPage::showAttribute(int attribute)
{
    m_Results->ShowAttribute(attribute);
}

void SearchFilterPage::keyPressEvent(QKeyEvent* event)
{
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (isEnter && !m_HasRun)
        extractMatches();
    else
        QWizardPage::keyPressEvent(event);
}

void SearchFilterPage::showNumber()
{
    m_Number->setText(tr("Number matches: %1").arg(CountMatches(GetMatches())));
}
