#include "dataimportpage.h"

#include "dataset.h"
#include "importfileform.h"
#include "previewtable.h"
#include "usererror.h"
#include <QFormLayout>
#include <QGroupBox>
#include <QHeaderView>
#include <QKeyEvent>

DataImportPage::DataImportPage(std::unique_ptr<DataSet>* dataSet, const QString& filter,
                               int previewRows, QWidget* parent)
    : QWizardPage(parent), m_DataSet(dataSet), m_Form(new ImportFileForm),
      m_Table(new PreviewTable), m_Filter(filter), m_PreviewRows(previewRows)
{
    setTitle(tr("File Specification"));
    auto* preview = new QGroupBox(tr("File Import"));
    auto* previewLayout = new QVBoxLayout(preview);
    previewLayout->addLayout(new QFormLayout);
    previewLayout->addWidget(m_Table, 1);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_Form);
    layout->addWidget(preview, 1);

    connect(m_Form, &ImportFileForm::LocateRequested, this, &DataImportPage::locateFile);
    connect(m_Form, &ImportFileForm::ImportRequested, this, &DataImportPage::readFile);
    connect(m_Table->horizontalHeader(), &QHeaderView::sectionClicked, this,
            &DataImportPage::headerClicked);
}

void DataImportPage::locateFile()
{
    m_Form->LocateFile(m_Filter);
}

void DataImportPage::readFile()
{
    if (!m_Form->HasFileName()) {
        ShowUserError(this, tr("Error"),
                      tr("Error - No data file has been specified to be imported."));
        return;
    }
    *m_DataSet = m_Form->Read();
    m_Table->ShowDataSet(m_DataSet->get(), m_PreviewRows);
    nameColumns();
}

bool DataImportPage::checkDataSet()
{
    if (!*m_DataSet) {
        ShowUserError(this, tr("Error"), tr("Error - No data file has been imported."));
        return false;
    }
    if ((*m_DataSet)->GetRowCount() == 0 || (*m_DataSet)->GetAttributeCount() == 0) {
        ShowUserError(this, tr("Error"), tr("Error - The imported data file holds no data rows."));
        return false;
    }
    return true;
}

int DataImportPage::getColumnCount() const
{
    return *m_DataSet ? (*m_DataSet)->GetAttributeCount() : 0;
}

int DataImportPage::getSamplingRate() const
{
    return m_Form->GetSamplingRate();
}

void DataImportPage::addPreviewField(const QString& label, QWidget* field)
{
    auto* form = qobject_cast<QFormLayout*>(m_Table->parentWidget()->layout()->itemAt(0)->layout());
    form->addRow(label, field);
    setTabOrder(field, m_Table);
}

void DataImportPage::showHeaders(const QStringList& names)
{
    m_Table->setHorizontalHeaderLabels(names);
}

void DataImportPage::keyPressEvent(QKeyEvent* event)
{
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (isEnter && m_Form->IsChangedSinceRead())
        readFile();
    else
        QWizardPage::keyPressEvent(event);
}
