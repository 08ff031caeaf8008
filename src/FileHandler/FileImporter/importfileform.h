#pragma once

#include <QGroupBox>

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
    /// Reads the file into a new data set that the caller owns. A failure is shown to the user;
    /// what was read up to then is returned all the same, null when there is nothing.
    DataSet* Read();
    int GetSamplingRate() const;

signals:
    void LocateRequested();
    void ImportRequested();
    /// A field that Read looks at has changed.
    void Changed();

private:
    void makeFields();
    QWidget* makeFileRow();

    QLineEdit* m_FileName;
    QSpinBox* m_StartRow;
    QSpinBox* m_StartColumn;
    QComboBox* m_Delimiter;
    QSpinBox* m_SamplingRate;
};
