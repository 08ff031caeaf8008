#include "ruleassociationfilterpage.h"

#include "cutcollection.h"
#include "dataset.h"
#include "dialogprogress.h"
#include "labelcollection.h"
#include "ruleextractor.h"
#include "searchrows.h"
#include <QComboBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QSlider>
#include <QSpinBox>
#include <algorithm>

namespace
{
constexpr int usualLength = 100;
}

RuleAssociationFilterPage::RuleAssociationFilterPage(DataSet* dataSet, const CutCollection* cuts,
                                                     const LabelCollection* labels,
                                                     CutSegment::SEGMENT_STATE searchMode,
                                                     QWidget* parent)
    : SearchFilterPage(tr("Results"), dataSet, parent), m_DataSet(dataSet), m_CutCollection(cuts),
      m_LabelCollection(labels), m_SearchMode(searchMode), m_Rows(new SearchRows),
      m_SearchLength(new QSlider(Qt::Horizontal))
{
    setTitle(tr("Rule Association Search"));
    m_SearchLength->setRange(1, std::max(dataSet ? dataSet->GetRowCount() : 0, 1));
    m_SearchLength->setValue(usualLength);
    connect(m_SearchLength, &QSlider::valueChanged, this, &RuleAssociationFilterPage::dropMatches);
    layOut(makeFields());
}

QWidget* RuleAssociationFilterPage::makeFields()
{
    auto* group = new QGroupBox(tr("Rule Association"));
    auto* add = new QPushButton(tr("Add New"));
    add->setToolTip(tr("Add the next behavior of the rule"));
    connect(add, &QPushButton::clicked, this, &RuleAssociationFilterPage::addRuleRow);
    auto* layout = new QVBoxLayout(group);
    layout->addWidget(add, 0, Qt::AlignLeft);
    layout->addWidget(m_Rows);
    layout->addLayout(makeLengthRow());
    layout->addLayout(makeExtractRow());
    return group;
}

// A slider alone cannot pick one of millions of lengths.
QLayout* RuleAssociationFilterPage::makeLengthRow()
{
    auto* box = new QSpinBox;
    box->setRange(m_SearchLength->minimum(), m_SearchLength->maximum());
    box->setValue(m_SearchLength->value());
    connect(box, qOverload<int>(&QSpinBox::valueChanged), m_SearchLength, &QSlider::setValue);
    connect(m_SearchLength, &QSlider::valueChanged, box, &QSpinBox::setValue);
    const QString hint = tr("Rows of each match behind the last label of the rule");
    box->setToolTip(hint);
    box->setAccessibleName(tr("Search Length"));
    m_SearchLength->setToolTip(hint);
    auto* label = new QLabel(tr("Search Length"));
    label->setBuddy(m_SearchLength);

    auto* row = new QHBoxLayout;
    row->addWidget(label);
    row->addWidget(m_SearchLength, 1);
    row->addWidget(box);
    return row;
}

void RuleAssociationFilterPage::addRuleRow()
{
    auto* box = new QComboBox;
    box->setToolTip(tr("The next behavior of the rule; an empty choice is left out"));
    box->addItem(QString());
    for (int i = 0; m_LabelCollection && i < m_LabelCollection->GetLabelCount(); ++i)
        box->addItem(m_LabelCollection->GetLabel(i)->GetName());
    connect(box, qOverload<int>(&QComboBox::currentIndexChanged), this,
            &RuleAssociationFilterPage::dropMatches);
    m_Labels.append(box);
    auto* row = new QWidget;
    auto* form = new QFormLayout(row);
    form->setContentsMargins(0, 0, 0, 0);
    form->addRow(tr("Label"), box);
    row->setFocusProxy(box);
    m_Rows->AddRow(row);
}

QStringList RuleAssociationFilterPage::getRule() const
{
    QStringList rule;
    for (const QComboBox* box : m_Labels) {
        if (!box->currentText().isEmpty())
            rule.append(box->currentText());
    }
    return rule;
}

void RuleAssociationFilterPage::extractMatches()
{
    const QStringList rule = getRule();
    DialogProgress progress(this, tr("Rule Extraction"), DialogProgress::CAN_STOP);
    progress.SetLabelText(tr("Initalizing Rule Extractor"));
    progress.SetRange(0, 1 + rule.size());
    RuleExtractor extractor(m_DataSet, m_CutCollection, m_LabelCollection, m_SearchMode);
    extractor.SetRuleLabels(rule);
    extractor.SetSearchLength(m_SearchLength->value());
    if (!extractor.Extract(progress))
        return;
    progress.SetLabelText(tr("Updating GUI"));
    showMatches(extractor.GetMatches());
}
