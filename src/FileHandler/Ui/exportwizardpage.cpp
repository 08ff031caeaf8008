#include "exportwizardpage.h"

#include "askuser.h"
#include "dataexport.h"
#include "dataset.h"
#include "filewriter.h"
#include "previewtable.h"
#include <QFormLayout>
#include <QGroupBox>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <algorithm>

namespace
{

constexpr int PREVIEW_ROWS = 20;

} // namespace

ExportWizardPage::ExportWizardPage(QWidget* parent)
    : QWizardPage(parent), m_FileName(new QLineEdit), m_Export(new QPushButton(tr("Export"))),
      m_Preview(new PreviewTable)
{
    setTitle(tr("Export File"));
    m_Preview->horizontalHeader()->setSectionsClickable(false);
    m_Preview->horizontalHeader()->setToolTip(QString());
    auto* preview = new QGroupBox(tr("Preview"));
    auto* previewLayout = new QVBoxLayout(preview);
    previewLayout->addWidget(m_Preview);

    auto* layout = new QVBoxLayout(this);
    layout->addLayout(makeFileRow());
    layout->addWidget(preview, 1);
}

QLayout* ExportWizardPage::makeFileRow()
{
    // Only the file dialog sets it: that asks before an old file is replaced.
    m_FileName->setReadOnly(true);
    m_FileName->setToolTip(tr("The file to write"));
    auto* label = new QLabel(tr("File:"));
    label->setBuddy(m_FileName);
    auto* browse = new QPushButton(tr("..."));
    browse->setToolTip(tr("Choose the file to write"));
    browse->setAccessibleName(tr("Choose the file to write"));
    m_Export->setToolTip(tr("Write all rows and attributes to the file"));
    m_Export->setEnabled(false);
    connect(browse, &QPushButton::clicked, this, &ExportWizardPage::locateFile);
    connect(m_Export, &QPushButton::clicked, this, &ExportWizardPage::exportFile);
    connect(m_FileName, &QLineEdit::textChanged, m_Export,
            [this](const QString& path) { m_Export->setEnabled(!path.isEmpty()); });

    auto* row = new QHBoxLayout;
    row->addWidget(label);
    row->addWidget(m_FileName, 1);
    row->addWidget(browse);
    row->addWidget(m_Export);
    return row;
}

void ExportWizardPage::SetDataSet(DataSet* dataSet)
{
    m_DataSet = dataSet;
    showPreview();
}

void ExportWizardPage::initializePage()
{
    // Pages before this one may have added columns.
    showPreview();
}

void ExportWizardPage::showPreview()
{
    const int rows = m_DataSet ? std::min(PREVIEW_ROWS, m_DataSet->GetRowCount()) : 0;
    m_Preview->ShowDataSet(m_DataSet, rows, FileWriter::Digits);
    if (m_DataSet)
        m_Preview->setHorizontalHeaderLabels(m_DataSet->GetAttributeNames());
    m_Preview->resizeColumnsToContents();
}

void ExportWizardPage::locateFile()
{
    const QString path = AskSavePath(this, tr("Export"), tr("CSV (*.csv)"), m_FileName->text());
    if (!path.isEmpty())
        m_FileName->setText(path);
}

void ExportWizardPage::exportFile()
{
    const QString path = m_FileName->text();
    if (!path.isEmpty() && ExportDataFile(this, m_DataSet, path))
        m_LastExported = path;
}

void ExportWizardPage::keyPressEvent(QKeyEvent* event)
{
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (isEnter && m_FileName->text() != m_LastExported)
        exportFile();
    else
        QWizardPage::keyPressEvent(event);
}
