#include "labeleddatatabwidget.h"

#include "addgroupdialog.h"
#include "askuser.h"
#include "behaviorclassstatisticswidget.h"
#include "classwidget.h"
#include "labelwriter.h"
#include "modaldialog.h"
#include "panelbutton.h"
#include "runexport.h"
#include "usererror.h"
#include <QHBoxLayout>
#include <QPushButton>
#include <QTabBar>
#include <QTabWidget>

namespace
{

QIcon makePatch(const QColor& color)
{
    QPixmap patch(300, 300);
    patch.fill(color);
    return patch;
}

// In the text of a tab, one ampersand would underline the letter behind it.
QString tabText(QString name)
{
    return name.replace(QLatin1Char('&'), QStringLiteral("&&"));
}

} // namespace

LabeledDataTabWidget::LabeledDataTabWidget(QWidget* parent)
    : QWidget(parent), m_Tabs(new QTabWidget)
{
    m_Tabs->setElideMode(Qt::ElideNone);
    m_Tabs->setUsesScrollButtons(true);
    // A segment that is dragged over a tab brings it to the front, to be dropped there.
    m_Tabs->tabBar()->setChangeCurrentOnDrag(true);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(4, 4, 4, 4);
    layout->addLayout(makeButtons());
    layout->addWidget(m_Tabs, 1);
    enableButtons();
}

QLayout* LabeledDataTabWidget::makeButtons()
{
    struct Button {
        const char* m_Text;
        const char* m_Icon;
        const char* m_ToolTip;
        void (LabeledDataTabWidget::*m_Slot)();
    };
    static const Button buttons[]{
        {"Add", "icons/add.png", "Add a group of labels", &LabeledDataTabWidget::addNewGroup},
        {"Edit", "icons/edit.png", "Rename this group", &LabeledDataTabWidget::editGroup},
        {"Delete", "icons/trash.png", "Delete this group and take its labels away",
         &LabeledDataTabWidget::deleteGroup},
        {"Stats", "icons/rule.png", "Statistics of an attribute over this group",
         &LabeledDataTabWidget::statsGroup},
        {"Export", "icons/export.png", "Write the labels of this group to a file",
         &LabeledDataTabWidget::exportGroup},
    };
    auto* row = new QHBoxLayout;
    for (const Button& button : buttons) {
        QPushButton* made =
            MakePanelButton(tr(button.m_Text), tr(button.m_ToolTip), QLatin1String(button.m_Icon));
        connect(made, &QPushButton::clicked, this, button.m_Slot);
        row->addWidget(made);
        m_GroupButtons.append(made);
    }
    row->addStretch();
    m_AddButton = m_GroupButtons.takeFirst();
    return row;
}

void LabeledDataTabWidget::enableButtons()
{
    m_AddButton->setEnabled(m_LabelCollection);
    for (QPushButton* button : qAsConst(m_GroupButtons))
        button->setEnabled(m_Tabs->count() > 0);
}

void LabeledDataTabWidget::SetRecording(LiveRecording* recording)
{
    if (m_Recording)
        m_Recording->disconnect(this);
    m_Recording = recording;
    SetLabelCollection(nullptr);
    SetDataSet(DataOf(recording));
    SetCutCollection(CutsOf(recording));
    SetLabelCollection(LabelsOf(recording));
    synchronize();
    if (recording)
        connect(recording, &LiveRecording::LabelsChanged, this, &LabeledDataTabWidget::synchronize);
}

void LabeledDataTabWidget::SetDataSet(DataSet* dataSet)
{
    m_DataSet = dataSet;
    for (int i = 0; i < m_Tabs->count(); ++i)
        classAt(i)->SetDataSet(dataSet);
}

void LabeledDataTabWidget::SetCutCollection(CutCollection* cuts)
{
    m_CutCollection = cuts;
    for (int i = 0; i < m_Tabs->count(); ++i)
        classAt(i)->SetCutCollection(cuts);
}

void LabeledDataTabWidget::SetLabelCollection(LabelCollection* labels)
{
    if (labels != m_LabelCollection)
        removeTabs();
    m_LabelCollection = labels;
    enableButtons();
}

void LabeledDataTabWidget::Rebuild()
{
    removeTabs();
    synchronize();
}

void LabeledDataTabWidget::Refresh()
{
    for (int i = 0; i < m_Tabs->count(); ++i)
        classAt(i)->removeAndAddAll();
}

void LabeledDataTabWidget::AddAttribute(int index, const QString& name)
{
    for (int i = 0; i < m_Tabs->count(); ++i)
        classAt(i)->AddAttribute(index, name);
}

BehaviorLabel* LabeledDataTabWidget::AddGroup(const QString& name)
{
    const LabelChange added = Labelling(m_CutCollection, m_LabelCollection).AddBehavior(name);
    if (added.IsEmpty())
        return nullptr;
    synchronize();
    if (m_Recording)
        m_Recording->Tell(LiveRecording::LABELS);
    return added.m_Behaviors.front().m_Behavior;
}

void LabeledDataTabWidget::synchronize()
{
    for (int i = m_Tabs->count() - 1; i >= 0; --i) {
        if (!m_LabelCollection || m_LabelCollection->IndexOf(classAt(i)->GetLabel()) == -1)
            removeTab(i);
    }
    const int count = m_LabelCollection ? m_LabelCollection->GetLabelCount() : 0;
    for (int i = 0; i < count; ++i) {
        BehaviorLabel* label = m_LabelCollection->GetLabel(i);
        const int tab = findTab(label);
        if (tab == -1)
            insertTab(i, label);
        else if (tab != i)
            m_Tabs->tabBar()->moveTab(tab, i);
        m_Tabs->setTabText(i, tabText(label->GetName()));
    }
    enableButtons();
}

int LabeledDataTabWidget::findTab(const BehaviorLabel* label) const
{
    int tab = m_Tabs->count() - 1;
    while (tab >= 0 && classAt(tab)->GetLabel() != label)
        --tab;
    return tab;
}

void LabeledDataTabWidget::insertTab(int index, BehaviorLabel* label)
{
    auto* tab = new ClassWidget;
    connect(tab, &ClassWidget::NewResultsFound, this, &LabeledDataTabWidget::NewResultsFound);
    connect(tab, &ClassWidget::ShowSelected, this, &LabeledDataTabWidget::ShowSelected);
    connect(tab, &ClassWidget::SegmentsUpdated, this, &LabeledDataTabWidget::SegmentsUpdated);
    if (m_Recording) {
        tab->SetRecording(m_Recording);
    } else {
        tab->SetDataSet(m_DataSet);
        tab->SetCutCollection(m_CutCollection);
        tab->SetLabelCollection(m_LabelCollection);
    }
    tab->SetLabel(label);
    m_Tabs->insertTab(index, tab, makePatch(label->GetColor()), QString());
}

void LabeledDataTabWidget::removeTab(int index)
{
    ClassWidget* tab = classAt(index);
    tab->SetLabel(nullptr);
    m_Tabs->removeTab(index);
    tab->deleteLater();
}

void LabeledDataTabWidget::removeTabs()
{
    while (m_Tabs->count() > 0)
        removeTab(0);
    enableButtons();
}

ClassWidget* LabeledDataTabWidget::classAt(int tab) const
{
    return static_cast<ClassWidget*>(m_Tabs->widget(tab));
}

ClassWidget* LabeledDataTabWidget::currentClass() const
{
    ClassWidget* current = classAt(m_Tabs->currentIndex());
    return current && current->GetLabel() ? current : nullptr;
}

void LabeledDataTabWidget::addNewGroup()
{
    if (!m_LabelCollection)
        return;
    ModalDialog<AddGroupDialog> dialog(AddGroupDialog::ADD_GROUP, this);
    if (dialog.IsAccepted() && AddGroup(dialog->GetName()))
        m_Tabs->setCurrentIndex(m_Tabs->count() - 1);
}

void LabeledDataTabWidget::editGroup()
{
    const QPointer<ClassWidget> edited(currentClass());
    if (!edited)
        return;
    ModalDialog<AddGroupDialog> dialog(AddGroupDialog::EDIT_GROUP, this);
    dialog->SetName(edited->GetLabel()->GetName());
    if (!dialog.IsAccepted() || !edited || !edited->GetLabel())
        return;
    Labelling(m_CutCollection, m_LabelCollection)
        .RenameBehavior(*edited->GetLabel(), dialog->GetName());
    m_Tabs->setTabText(m_Tabs->indexOf(edited), tabText(dialog->GetName()));
    if (m_Recording)
        m_Recording->Tell(LiveRecording::LABELS);
}

void LabeledDataTabWidget::deleteGroup()
{
    const QPointer<ClassWidget> deleted(currentClass());
    if (!deleted ||
        !AskYesNo(this, tr("Delete Group"),
                  tr("Are you sure you want to delete the current group?")) ||
        !deleted || !deleted->GetLabel())
        return;
    Labelling(m_CutCollection, m_LabelCollection).RemoveBehavior(*deleted->GetLabel());
    removeTab(m_Tabs->indexOf(deleted));
    enableButtons();
    emit SegmentsUpdated();
    if (m_Recording)
        m_Recording->TellLabels();
}

void LabeledDataTabWidget::statsGroup()
{
    const QPointer<ClassWidget> shown(currentClass());
    if (!shown || !m_DataSet)
        return;
    const int attribute = AskAttribute(this, *m_DataSet);
    if (attribute == -1 || !shown || !shown->GetLabel())
        return;
    ModalDialog<BehaviorClassStatisticsWidget> statistics(m_DataSet, this);
    statistics->SetBehavior(shown->GetLabel());
    statistics->SetAttribute(attribute);
    statistics.Run();
}

void LabeledDataTabWidget::exportGroup()
{
    const QPointer<ClassWidget> exported(currentClass());
    if (!exported || !m_DataSet)
        return;
    const QString path = AskSavePath(this, tr("Export Labels"), tr("Text (*.txt)"));
    if (path.isEmpty() || !exported || !exported->GetLabel())
        return;
    LabelWriter writer(path);
    writer.SetDataSet(m_DataSet);
    const ExportResult result = RunExport(this, [&](Progress* progress) {
        writer.SetProgress(progress);
        return writer.WriteLabel(exported->GetLabel());
    });
    if (result == EXPORT_FAILED)
        ShowUserError(this, tr("Error writing label collection"),
                      tr("Error: ") + writer.GetError());
}
