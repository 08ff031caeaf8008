#include "behaviorclassstatisticswidget.h"

#include "askuser.h"
#include "dataset.h"
#include "instancecolumnswriter.h"
#include "rangestatistics.h"
#include "runexport.h"
#include "statisticsform.h"
#include "usererror.h"
#include <QFormLayout>
#include <QLabel>
#include <QPushButton>

BehaviorClassStatisticsWidget::BehaviorClassStatisticsWidget(DataSet* dataSet, QWidget* parent)
    : QDialog(parent), m_DataSet(dataSet)
{
    setWindowTitle(tr("Behavior Statistics"));
    auto* exportButton = new QPushButton(tr("Export"));
    exportButton->setToolTip(tr("Write the values of all instances side by side to a file"));
    connect(exportButton, &QPushButton::clicked, this,
            &BehaviorClassStatisticsWidget::exportSideBySide);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(new QLabel(tr("<h2>Behavior Statistics</h2>")));
    layout->addLayout(makeFields());
    layout->addStretch();
    layout->addLayout(MakeCloseRow(this, exportButton));
}

QLayout* BehaviorClassStatisticsWidget::makeFields()
{
    auto* form = new QFormLayout;
    m_Name = AddReadOnlyField(form, tr("Name:"), tr("The behaviour"));
    m_InstanceCount =
        AddReadOnlyField(form, tr("Number Instances:"), tr("Segments labelled as this behaviour"));
    m_Maximum = AddReadOnlyField(form, tr("Maximum Value:"), tr("Over all instances"));
    m_Minimum = AddReadOnlyField(form, tr("Minimum Value:"), tr("Over all instances"));
    m_Mean = AddReadOnlyField(form, tr("Mean Value:"),
                              tr("The mean of the instances' means: each counts the same, "
                                 "however long it is"));
    return form;
}

void BehaviorClassStatisticsWidget::SetBehavior(BehaviorLabel* behavior)
{
    m_Behavior = behavior;
    fillFields();
}

void BehaviorClassStatisticsWidget::SetAttribute(int attribute)
{
    m_Attribute = attribute < m_DataSet->GetAttributeCount() ? attribute : -1;
    fillFields();
}

void BehaviorClassStatisticsWidget::fillFields()
{
    if (!isComplete())
        return;
    const auto statistics = ComputeBehaviorStatistics(*m_DataSet, *m_Behavior, m_Attribute);
    setWindowTitle(tr("Behavior Statistics - %1").arg(m_DataSet->GetAttributeName(m_Attribute)));
    m_Name->setText(m_Behavior->GetName());
    m_Name->setCursorPosition(0);
    m_InstanceCount->setText(QString::number(m_Behavior->GetInstanceCount()));
    m_Maximum->setText(QString::number(statistics.m_Maximum, 'g', 6));
    m_Minimum->setText(QString::number(statistics.m_Minimum, 'g', 6));
    m_Mean->setText(QString::number(statistics.m_Mean, 'g', 6));
}

void BehaviorClassStatisticsWidget::exportSideBySide()
{
    if (!isComplete())
        return;
    const QString path = AskSavePath(this, tr("Export Labels"), tr("CSV (*.csv)"));
    // The behaviour may have gone while the user was choosing.
    if (path.isEmpty() || !m_Behavior)
        return;
    const ExportResult result = RunExport(this, [&](Progress* progress) {
        return WriteInstanceColumns(path, *m_DataSet, *m_Behavior, m_Attribute, progress);
    });
    if (result == EXPORT_FAILED)
        ShowUserError(this, tr("Error writing label collection"),
                      tr("Error: ") + tr("Unable to open file"));
}
