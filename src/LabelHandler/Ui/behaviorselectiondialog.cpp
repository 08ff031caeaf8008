#include "behaviorselectiondialog.h"

#include "dialogbuttons.h"
#include "labelcollection.h"
#include <QComboBox>
#include <QFormLayout>
#include <QLabel>
#include <QVBoxLayout>

BehaviorSelectionDialog::BehaviorSelectionDialog(QWidget* parent)
    : QDialog(parent), m_Behavior(new QComboBox)
{
    m_Behavior->setToolTip(tr("The behavior that the segments shall belong to"));
    m_Behavior->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_Behavior->setMinimumContentsLength(24);
    auto* form = new QFormLayout;
    form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    form->addRow(tr("Behavior"), m_Behavior);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(new QLabel(tr("<h2>Behavior Selection</h2>")));
    layout->addLayout(form);
    layout->addStretch();
    layout->addLayout(MakeDialogButtons(this, tr("Save")));
    m_Behavior->setFocus();
}

void BehaviorSelectionDialog::SetLabelCollection(const LabelCollection* labels)
{
    m_Behavior->clear();
    m_Labels.clear();
    for (int i = 0; labels && i < labels->GetLabelCount(); ++i) {
        BehaviorLabel* label = labels->GetLabel(i);
        QPixmap patch(m_Behavior->iconSize());
        patch.fill(label->GetColor());
        m_Behavior->addItem(patch, label->GetName());
        m_Labels.append(label);
    }
}

BehaviorLabel* BehaviorSelectionDialog::GetSelectedLabel() const
{
    return m_Labels.value(m_Behavior->currentIndex());
}
