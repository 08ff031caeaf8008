#pragma once

#include <QWizard>
#include <memory>

class DataSet;

/// Leads from a text file to a finished data set.
class FileImportWizard : public QWizard
{
    Q_OBJECT
public:
    explicit FileImportWizard(QWidget* parent = nullptr);
    ~FileImportWizard() override;

    /// The data set read so far, null if none. Whoever accepts the wizard takes it, or owns what
    /// GetDataSet gives from then on: an accepted wizard deletes nothing.
    std::unique_ptr<DataSet> TakeDataSet();
    DataSet* GetDataSet() const { return m_DataSet.get(); }

private:
    std::unique_ptr<DataSet> m_DataSet;
};
