#pragma once

#include "dataimportpage.h"
#include <QStringList>

/// A slimmer import page for logger files: names only, and a longer preview.
class FileSpecWizardPage : public DataImportPage
{
    Q_OBJECT
public:
    /// dataSet: where the wizard keeps its data set.
    explicit FileSpecWizardPage(std::unique_ptr<DataSet>* dataSet, QWidget* parent = nullptr);

    /// Passes the names and the sampling rate on to the data set.
    bool validatePage() override;

public slots:
    void headerClicked(int column) override;

protected:
    void nameColumns() override;

private:
    QStringList m_HeaderNames;
};
