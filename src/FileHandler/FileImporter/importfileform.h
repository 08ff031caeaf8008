#pragma once

#include <QGroupBox>
#include <memory>

class DataSet;
class QComboBox;
class QLineEdit;
class QPushButton;
class QSpinBox;

/// The fields that say which file to import and how to read it.
class ImportFileForm : public QGroupBox
{
    Q_OBJECT
public:
    explicit ImportFileForm(QWidget* parent = nullptr);

    /// Lets the user pick the file. filter: as QFileDialog takes it.
    void LocateFile(const QString& filter);
    bool HasFileName() const;
    /// Reads the file into a new data set. A failure is shown to the user; what was read up to then
    /// is returned all the same, null when there is nothing.
    std::unique_ptr<DataSet> Read();
    /// Whether Read would now read something else than it did the last time.
    bool IsChangedSinceRead() const { return getFields() != m_FieldsRead; }
    int GetSamplingRate() const;

signals:
    void LocateRequested();
    void ImportRequested();

private:
    void makeFields();
    QWidget* makeFileRow();
    QStringList getFields() const;

    QLineEdit* m_FileName;
    QSpinBox* m_StartRow;
    QSpinBox* m_StartColumn;
    QComboBox* m_Delimiter;
    QSpinBox* m_SamplingRate;
    // What stood in the fields at the last Read.
    QStringList m_FieldsRead;
};
