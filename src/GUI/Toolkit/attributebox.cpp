#include "attributebox.h"

#include "dataset.h"
#include "liverecording.h"
#include <QSignalBlocker>
#include <algorithm>

AttributeBox::AttributeBox(const QString& toolTip, QWidget* parent) : QComboBox(parent)
{
    setToolTip(toolTip);
    // Not the width of the longest entry, which can be any name.
    setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    setMinimumContentsLength(12);
    connect(this, qOverload<int>(&QComboBox::currentIndexChanged), this, &AttributeBox::choose);
}

AttributeBox::AttributeBox(const DataSet* dataSet, const QString& toolTip) : AttributeBox(toolTip)
{
    SetDataSet(dataSet);
}

void AttributeBox::SetDataSet(const DataSet* dataSet)
{
    m_DataSet = dataSet;
    m_WantedName =
        dataSet && dataSet->GetAttributeCount() > 0 ? dataSet->GetAttributeName(0) : QString();
    UpdateAttributes();
}

void AttributeBox::SetRecording(LiveRecording* recording)
{
    if (m_Recording)
        m_Recording->disconnect(this);
    m_Recording = recording;
    if (recording)
        connect(recording, &LiveRecording::AttributesChanged, this,
                &AttributeBox::UpdateAttributes);
    SetDataSet(DataOf(recording));
}

void AttributeBox::UpdateAttributes()
{
    const QStringList names = m_DataSet ? m_DataSet->GetAttributeNames() : QStringList();
    const int wanted = findWanted(names);
    {
        const QSignalBlocker blocker(this);
        clear();
        for (const QString& name : names)
            addItem(name, count());
        setCurrentIndex(wanted);
    }
    emit AttributeChanged(GetAttribute());
}

// Two attributes may have one name: then the one in the same place.
int AttributeBox::findWanted(const QStringList& names) const
{
    const int current = currentIndex();
    if (current >= 0 && current < names.size() && names[current] == m_WantedName)
        return current;
    return names.isEmpty() ? -1 : std::max(names.indexOf(m_WantedName), 0);
}

void AttributeBox::SetAttribute(int attribute)
{
    if (attribute < 0 || attribute >= count())
        return;
    m_WantedName = itemText(attribute);
    setCurrentIndex(attribute);
}

void AttributeBox::choose(int attribute)
{
    m_WantedName = itemText(attribute);
    emit AttributeChanged(attribute);
}
