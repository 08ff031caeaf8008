#pragma once

#include "attributelook.h"
#include "liverecording.h"
#include <QComboBox>
#include <QPointer>

/// Lets the user choose an attribute of a data set. The index of an entry is that of its
/// attribute, and so is its data.
///
/// The choice is one of a name: when attributes come and go it stays on the attribute of that name,
/// wherever that stands now; while there is none, on the first, and when one comes back, on that.
class AttributeBox : public QComboBox
{
    Q_OBJECT
public:
    explicit AttributeBox(const QString& toolTip = QString(), QWidget* parent = nullptr);
    AttributeBox(const DataSet* dataSet, const QString& toolTip);

    /// Offers the attributes of a data set, the first one chosen; null offers none.
    void SetDataSet(const DataSet* dataSet);
    /// The same, and follows the recording's changes.
    void SetRecording(LiveRecording* recording);
    /// Offers the attributes that there are now.
    void UpdateAttributes();

    /// -1 without attributes.
    int GetAttribute() const { return currentIndex(); }
    /// Does nothing for an attribute that there is not.
    void SetAttribute(int attribute);

signals:
    /// Another attribute is chosen, or the chosen one has another index, other values or another
    /// axis.
    void AttributeChanged(int attribute);

private:
    void choose(int attribute);
    void offer(int attribute);

    const DataSet* m_DataSet = nullptr;
    QPointer<LiveRecording> m_Recording;
    // What was chosen last, by the user or from outside.
    QString m_WantedName;
    // Of the chosen attribute, when it was last told.
    AttributeLook m_Look;
};
