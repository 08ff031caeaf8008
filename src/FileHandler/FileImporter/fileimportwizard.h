#pragma once

#include <QWizard>

class DataSet;

/// Leads from a text file to a finished data set.
class FileImportWizard : public QWizard
{
    Q_OBJECT
public:
    explicit FileImportWizard(QWidget* parent = nullptr);
    /// Deletes the data set unless the wizard was accepted.
    ~FileImportWizard() override;

    /// The data set read so far, null if none. Once the wizard is accepted it belongs to the
    /// caller.
    DataSet* GetDataSet() const { return m_DataSet; }

private:
    DataSet* m_DataSet = nullptr;
};
