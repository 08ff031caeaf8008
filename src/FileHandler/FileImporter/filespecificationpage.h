#pragma once

#include "dataimportpage.h"
#include "headerpresets.h"
#include <memory>

class QComboBox;

/// The page of the import: file, preview, and names and types of the columns.
class FileSpecificationPage : public DataImportPage
{
    Q_OBJECT
public:
    /// dataSet: where the wizard keeps its data set.
    explicit FileSpecificationPage(std::unique_ptr<DataSet>* dataSet, QWidget* parent = nullptr);

    /// Finishes the data set: see FinishImport.
    bool validatePage() override;

public slots:
    void setPresetNames(int preset);
    void headerClicked(int column) override;

protected:
    /// Always starts from the first preset, whatever the combo box shows: the one that it shows has
    /// to be picked again.
    void nameColumns() override { setPresetNames(0); }

private:
    void askForNames();

    QComboBox* m_Preset;
    // The preset whose names stand in the headers; the combo box may show another one.
    int m_AppliedPreset = 0;
    ColumnHeaders m_Headers;
};
