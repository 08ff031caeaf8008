#include "fileimportwizard.h"

#include "dataset.h"
#include "filespecificationpage.h"

FileImportWizard::FileImportWizard(QWidget* parent) : QWizard(parent)
{
    setWindowTitle(tr("File Import Wizard"));
    addPage(new FileSpecificationPage(&m_DataSet));
    resize(fontMetrics().averageCharWidth() * 110, fontMetrics().height() * 40);
}

FileImportWizard::~FileImportWizard()
{
    if (result() == QDialog::Accepted)
        static_cast<void>(m_DataSet.release());
}

std::unique_ptr<DataSet> FileImportWizard::TakeDataSet()
{
    return std::move(m_DataSet);
}
