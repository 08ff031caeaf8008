#include "resizewizardpage.h"

#include "attributebox.h"
#include "dialogprogress.h"
#include "insertionforecast.h"
#include "resizelist.h"
#include <QComboBox>
#include <QFormLayout>
#include <QLabel>

ResizeWizardPage::ResizeWizardPage(DataSet* dataSet, CutCollection* cuts,
                                   CutSegment::SEGMENT_STATE searchMode, QWidget* parent)
    : QWizardPage(parent),
      m_Attribute(new AttributeBox(dataSet, tr("The attribute that the plots show"))),
      m_Number(new QLabel), m_Forecast(new InsertionForecast(cuts, searchMode)),
      m_List(new ResizeList(dataSet))
{
    setTitle(tr("Resize Results"));
    auto* form = new QFormLayout;
    form->addRow(tr("Attribute"), m_Attribute);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(form);
    layout->addWidget(m_Number);
    layout->addWidget(m_Forecast);
    layout->addWidget(m_List, 1);
    SetMatches({});
    connect(m_Attribute, qOverload<int>(&QComboBox::currentIndexChanged), this,
            &ResizeWizardPage::changeAttIndex);
    connect(m_List, &ResizeList::EndsChanged, this,
            [this] { m_Forecast->SetMatches(m_List->GetMatches()); });
}

void ResizeWizardPage::SetMatches(const SearchMatches& matches)
{
    m_Number->setText(tr("Number matches: %1").arg(matches.size()));
    if (matches == m_Matches)
        return;
    m_Matches = matches;
    m_List->SetMatches(matches);
    m_Forecast->SetMatches(matches);
}

void ResizeWizardPage::changeAttIndex(int attribute)
{
    m_List->SetAttribute(attribute);
}

bool ResizeWizardPage::validatePage()
{
    if (!m_Forecast->AgreesToInsert())
        return false;
    DialogProgress progress(this, tr("Inserting Cuts"));
    m_Forecast->Insert(progress);
    return true;
}
