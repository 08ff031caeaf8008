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
    offer(dataSet && dataSet->GetAttributeCount() > 0 ? 0 : -1);
    m_WantedName = currentText();
    emit AttributeChanged(GetAttribute());
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
    const int before = GetAttribute();
    const AttributeLook lookBefore = m_Look;
    const bool hasAttributes = m_DataSet && m_DataSet->GetAttributeCount() > 0;
    offer(hasAttributes ? std::max(m_DataSet->FindAttribute(m_WantedName, before), 0) : -1);
    if (GetAttribute() != before || m_Look != lookBefore)
        emit AttributeChanged(GetAttribute());
}

void AttributeBox::offer(int attribute)
{
    const QSignalBlocker blocker(this);
    clear();
    for (int i = 0; m_DataSet && i < m_DataSet->GetAttributeCount(); ++i)
        addItem(m_DataSet->GetAttributeName(i), i);
    setCurrentIndex(attribute);
    m_Look = m_DataSet ? AttributeLook(*m_DataSet, attribute) : AttributeLook();
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
    m_Look = m_DataSet ? AttributeLook(*m_DataSet, attribute) : AttributeLook();
    emit AttributeChanged(attribute);
}
