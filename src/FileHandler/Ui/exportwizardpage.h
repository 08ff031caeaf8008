#pragma once

#include <QWizardPage>

class DataSet;
class PreviewTable;
class QLineEdit;
class QPushButton;

/// The last page of a wizard: shows the data as it has become and writes it to a file.
class ExportWizardPage : public QWizardPage
{
    Q_OBJECT
public:
    explicit ExportWizardPage(QWidget* parent = nullptr);

    /// dataSet: may be null, and may change before the page is shown again.
    void SetDataSet(DataSet* dataSet);

    void initializePage() override;
    /// No page follows, whatever its number.
    int nextId() const override { return -1; }

public slots:
    void locateFile();
    /// Writes the data to the file, when one has been chosen.
    void exportFile();

protected:
    /// Enter writes to a chosen file as long as nothing was written there; otherwise it is left to
    /// the wizard, which finishes.
    void keyPressEvent(QKeyEvent* event) override;

private:
    QLayout* makeFileRow();
    void showPreview();

    DataSet* m_DataSet = nullptr;
    QLineEdit* m_FileName;
    QPushButton* m_Export;
    PreviewTable* m_Preview;
    QString m_LastExported;
};
