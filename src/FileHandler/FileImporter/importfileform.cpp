#include "importfileform.h"

#include "dataset.h"
#include "fileimporter.h"
#include "usererror.h"
#include <QComboBox>
#include <QFileDialog>
#include <QFormLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>

ImportFileForm::ImportFileForm(QWidget* parent)
    : QGroupBox(parent), m_FileName(new QLineEdit), m_StartRow(new QSpinBox),
      m_StartColumn(new QSpinBox(this)), m_Delimiter(new QComboBox), m_SamplingRate(new QSpinBox)
{
    setTitle(tr("File Specification"));
    makeFields();
    // Never offered to the user and always 0, so every column of a line is read.
    m_StartColumn->hide();

    auto* import = new QPushButton(tr("Import"));
    import->setToolTip(tr("Read the file and show its first rows"));
    connect(import, &QPushButton::clicked, this, &ImportFileForm::ImportRequested);

    auto* form = new QFormLayout(this);
    form->addRow(tr("File:"), makeFileRow());
    form->addRow(tr("Data Start Row"), m_StartRow);
    form->addRow(tr("File Deliminator:"), m_Delimiter);
    form->addRow(tr("Sampling Rate (Hz):"), m_SamplingRate);
    form->addRow(QString(), import);
}

void ImportFileForm::makeFields()
{
    m_FileName->setReadOnly(true);
    m_FileName->setToolTip(tr("The data file to import"));
    m_StartRow->setToolTip(tr("Lines to skip at the top of the file"));
    m_Delimiter->addItem(tr("Tabulated"), QStringLiteral("\t"));
    m_Delimiter->addItem(tr("Comma Seperated (CSV)"), QStringLiteral(","));
    m_Delimiter->setToolTip(tr("What stands between two columns"));
    m_SamplingRate->setValue(40);
    m_SamplingRate->setToolTip(tr("Rows per second"));
}

QWidget* ImportFileForm::makeFileRow()
{
    auto* browse = new QPushButton(tr("..."));
    browse->setToolTip(tr("Choose the data file"));
    browse->setAccessibleName(tr("Choose the data file"));
    connect(browse, &QPushButton::clicked, this, &ImportFileForm::LocateRequested);

    auto* row = new QWidget;
    auto* layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_FileName, 1);
    layout->addWidget(browse);
    row->setFocusProxy(m_FileName);
    return row;
}

void ImportFileForm::LocateFile(const QString& filter)
{
    const QString path =
        QFileDialog::getOpenFileName(this, tr("Locate file"), QStringLiteral("/home"), filter);
    if (!path.isEmpty())
        m_FileName->setText(path);
}

bool ImportFileForm::HasFileName() const
{
    return !m_FileName->text().isEmpty();
}

QStringList ImportFileForm::getFields() const
{
    return {m_FileName->text(), m_StartRow->text(), m_Delimiter->currentText()};
}

std::unique_ptr<DataSet> ImportFileForm::Read()
{
    m_FieldsRead = getFields();
    FileImporter importer(this, m_FileName->text());
    importer.SetStartRow(m_StartRow->value());
    importer.SetStartColumn(m_StartColumn->value());
    importer.SetDelimiter(m_Delimiter->currentData().toString());
    if (!importer.Read())
        ShowUserError(this, tr("Error reading file"),
                      tr("Error reading file: ") + importer.GetError());
    std::unique_ptr<DataSet> dataSet = importer.TakeDataSet();
    if (dataSet)
        dataSet->ComputeRanges();
    return dataSet;
}

int ImportFileForm::GetSamplingRate() const
{
    return m_SamplingRate->value();
}
