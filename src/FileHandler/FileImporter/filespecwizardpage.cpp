#include "filespecwizardpage.h"

#include "dataset.h"
#include "headerpresets.h"
#include <QInputDialog>

namespace
{

constexpr int PREVIEW_ROWS = 50;

} // namespace

FileSpecWizardPage::FileSpecWizardPage(std::unique_ptr<DataSet>* dataSet, QWidget* parent)
    : DataImportPage(dataSet, tr("Text file (*.txt)"), PREVIEW_ROWS, parent)
{
}

void FileSpecWizardPage::nameColumns()
{
    m_HeaderNames = LoggerColumnNames(getColumnCount());
    showHeaders(m_HeaderNames);
}

void FileSpecWizardPage::headerClicked(int column)
{
    if (column < 0 || column >= m_HeaderNames.size())
        return;
    bool isAccepted = false;
    const QString name =
        QInputDialog::getText(this, tr("Header name"), tr("Name"), QLineEdit::Normal,
                              m_HeaderNames.at(column), &isAccepted);
    if (!isAccepted)
        return;
    m_HeaderNames[column] = name;
    showHeaders(m_HeaderNames);
}

bool FileSpecWizardPage::validatePage()
{
    if (!checkDataSet())
        return false;
    (*m_DataSet)->SetAttributeNames(new QStringList(m_HeaderNames));
    (*m_DataSet)->m_SamplingRate = getSamplingRate();
    return true;
}
