#pragma once

#include <QObject>
#include <QTimer>

class DataSet;
class LabelCollection;

/// Keeps a copy of the labels on disk while the user works on them, so that a crash, or a
/// recording that is left without an export, does not cost more than a minute of labelling.
///
/// One project file per recording, named after the time at which its first label was seen; the
/// oldest files are removed. Failures are passed over: the backup must never be in the way.
class LabelBackup : public QObject
{
    Q_OBJECT
public:
    /// folder: made when it is first needed.
    explicit LabelBackup(const QString& folder, QObject* parent = nullptr);

    /// Writes what is not yet written of the labels so far, then looks after others; both may be
    /// null, and stay valid until the next call.
    void Watch(const DataSet* dataSet, const LabelCollection* labels);
    /// Writes the labels when there are any and they have changed.
    void Write();

private:
    QString path();
    void removeOldest() const;

    const QString m_Folder;
    const DataSet* m_DataSet = nullptr;
    const LabelCollection* m_Labels = nullptr;
    // Of this recording; empty until it has labels.
    QString m_Path;
    uint m_WrittenState = 0;
    QTimer m_Timer;
};
