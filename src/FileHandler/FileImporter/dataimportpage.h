#pragma once

#include <QWizardPage>
#include <memory>

class DataSet;
class ImportFileForm;
class PreviewTable;

/// What the import pages share: the file's fields, the preview and the data set that is read.
/// The data set lives in a variable of the wizard, which owns it.
class DataImportPage : public QWizardPage
{
    Q_OBJECT
public slots:
    void locateFile();
    /// Reads the file anew, replaces the data set and names its columns.
    void readFile();
    /// Lets the user name a column.
    virtual void headerClicked(int column) = 0;

protected:
    /// dataSet: where the wizard keeps its data set. filter: of the file dialog.
    DataImportPage(std::unique_ptr<DataSet>* dataSet, const QString& filter, int previewRows,
                   QWidget* parent);

    /// Gives the columns of a data set just read their first names.
    virtual void nameColumns() = 0;
    /// Whether there is something to finish; tells the user if not.
    bool checkDataSet();
    int getColumnCount() const;
    int getSamplingRate() const;
    /// Puts a row of fields above the preview.
    void addPreviewField(const QString& label, QWidget* field);
    void showHeaders(const QStringList& names);
    /// Enter imports as long as the fields have changed since the last import; only then it is
    /// left to the wizard, which finishes.
    void keyPressEvent(QKeyEvent* event) override;

    std::unique_ptr<DataSet>* m_DataSet;

private:
    ImportFileForm* m_Form;
    PreviewTable* m_Table;
    QString m_Filter;
    int m_PreviewRows;
};
