#include "resizewizardpage.h"

#include "attributebox.h"
#include "dialogprogress.h"
#include "insertmatches.h"
#include "resizelist.h"
#include "usererror.h"
#include <QComboBox>
#include <QFormLayout>
#include <QLabel>
#include <QWizard>

ResizeWizardPage::ResizeWizardPage(DataSet* dataSet, CutCollection* cuts,
                                   CutSegment::SEGMENT_STATE searchMode, QWidget* parent)
    : QWizardPage(parent), m_CutCollection(cuts), m_SearchMode(searchMode),
      m_Attribute(new AttributeBox(dataSet, tr("The attribute that the plots show"))),
      m_Number(new QLabel), m_List(new ResizeList(dataSet))
{
    setTitle(tr("Resize Results"));
    auto* form = new QFormLayout;
    form->addRow(tr("Attribute"), m_Attribute);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(form);
    layout->addWidget(m_Number);
    layout->addWidget(m_List, 1);
    SetMatches({});
    connect(m_Attribute, qOverload<int>(&QComboBox::currentIndexChanged), this,
            &ResizeWizardPage::changeAttIndex);
}

void ResizeWizardPage::SetMatches(const SearchMatches& matches)
{
    m_Number->setText(tr("Number of matches that become results: %1").arg(matches.size()));
    if (matches == m_Matches)
        return;
    m_Matches = matches;
    m_List->SetMatches(matches);
}

void ResizeWizardPage::changeAttIndex(int attribute)
{
    m_List->SetAttribute(attribute);
}

bool ResizeWizardPage::validatePage()
{
    if (!m_CutCollection)
        return true;
    const int count = m_List->GetMatches().size();
    int inserted = 0;
    {
        DialogProgress progress(this, tr("Inserting Cuts"));
        inserted = InsertMatches(*m_CutCollection, m_List->GetMatches(), m_SearchMode, progress);
    }
    // The wizard is about to close.
    if (inserted < count)
        ShowUserError(wizard() ? wizard()->parentWidget() : nullptr, tr("Resize Results"),
                      tr("Error: %1 of %2 results cross the end of a segment and were left out.")
                          .arg(count - inserted)
                          .arg(count));
    return true;
}
