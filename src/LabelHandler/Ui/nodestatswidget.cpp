#include "nodestatswidget.h"

#include "askuser.h"
#include "attributebox.h"
#include "dataset.h"
#include "filewriter.h"
#include "modaldialog.h"
#include "rangestatistics.h"
#include "runexport.h"
#include "statisticsform.h"
#include "usererror.h"
#include <QFormLayout>
#include <QLabel>
#include <QPushButton>

NodeStatsWidget::NodeStatsWidget(DataSet* dataSet, QWidget* parent)
    : QDialog(parent), m_DataSet(dataSet),
      m_Attributes(new AttributeBox(dataSet, tr("The attribute to look at")))
{
    setWindowTitle(tr("Data Statistics"));
    auto* exportButton = new QPushButton(tr("Export Data"));
    exportButton->setToolTip(tr("Write the rows with all their attributes to a file"));
    connect(exportButton, &QPushButton::clicked, this, &NodeStatsWidget::exportData);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(new QLabel(tr("<h2>Data Statistics</h2>")));
    layout->addLayout(makeFields());
    layout->addStretch();
    layout->addLayout(MakeCloseRow(this, exportButton));
    computeStats(0);
}

QLayout* NodeStatsWidget::makeFields()
{
    connect(m_Attributes, QOverload<int>::of(&QComboBox::activated), this,
            &NodeStatsWidget::computeStats);

    auto* form = new QFormLayout;
    form->addRow(tr("Data Attribute"), m_Attributes);
    m_Minimum = AddReadOnlyField(form, tr("Minimum"), tr("The lowest value of the rows"));
    m_Maximum = AddReadOnlyField(form, tr("Maximum"), tr("The highest value of the rows"));
    m_Mean = AddReadOnlyField(form, tr("Mean"), tr("The mean value of the rows"));
    return form;
}

void NodeStatsWidget::SetRange(int from, int to)
{
    m_From = from;
    m_To = to;
    computeStats(m_Attribute);
}

void NodeStatsWidget::computeStats(int attribute)
{
    if (attribute < 0 || attribute >= m_Attributes->count())
        return;
    m_Attribute = attribute;
    m_Attributes->SetAttribute(attribute);
    const bool isAll = m_From < 0 || m_To < 0;
    const auto statistics = ComputeRangeStatistics(*m_DataSet, attribute, isAll ? 0 : m_From,
                                                   isAll ? m_DataSet->GetRowCount() : m_To);
    m_Minimum->setText(QString::number(statistics.m_Minimum, 'g', 6));
    m_Maximum->setText(QString::number(statistics.m_Maximum, 'g', 6));
    m_Mean->setText(QString::number(statistics.m_Mean, 'g', 6));
}

void NodeStatsWidget::exportData()
{
    const QString path = AskSavePath(this, tr("Save Data"), tr("csv (*.csv)"));
    if (path.isEmpty())
        return;
    FileWriter writer(path);
    writer.SetDataSet(m_DataSet);
    writer.SetRange(m_From, m_To);
    const ExportResult result = RunExport(this, [&](Progress* progress) {
        writer.SetProgress(progress);
        return writer.Write();
    });
    if (result == EXPORT_FAILED)
        ShowUserError(this, tr("Error writing file"),
                      tr("Error writing file: ") + writer.GetError());
}

void ShowDataStatistics(const SharedRecording& recording, QWidget* parent)
{
    ModalDialog<NodeStatsWidget>(recording->GetDataSet(), parent).Run();
}
