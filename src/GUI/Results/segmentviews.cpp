#include "segmentviews.h"

#include "cutsegment.h"
#include "dataset.h"
#include "multiplelineplotwidget.h"
#include "tableresultwidget.h"
#include <QComboBox>
#include <QLabel>
#include <QStackedWidget>
#include <QVBoxLayout>

namespace
{

QComboBox* makeChooser(const QString& toolTip)
{
    auto* chooser = new QComboBox;
    chooser->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    chooser->setToolTip(toolTip);
    return chooser;
}

QLabel* makeLabel(const QString& text, QWidget* buddy)
{
    auto* label = new QLabel(text);
    label->setBuddy(buddy);
    return label;
}

} // namespace

SegmentViews::SegmentViews(QWidget* parent)
    : QWidget(parent), m_Attribute(makeChooser(tr("The attribute that the lines show"))),
      m_Layout(makeChooser(tr("How the segments are shown"))), m_Stack(new QStackedWidget),
      m_Table(new TableResultWidget), m_Overlay(new MultipleLinePlotWidget)
{
    // Not the width of the longest entry, which can be any name.
    m_Attribute->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_Attribute->setMinimumContentsLength(4);
    m_Layout->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addLayout(makeChoosers());
    layout->addWidget(m_Stack, 1);
    AddLayout(tr("Sparkline Table"), m_Table);
    AddLayout(tr("Graph Overlay"), m_Overlay);

    connect(m_Attribute, qOverload<int>(&QComboBox::currentIndexChanged), this,
            &SegmentViews::sayAttribute);
    connect(m_Layout, qOverload<int>(&QComboBox::currentIndexChanged), m_Stack,
            &QStackedWidget::setCurrentIndex);
}

QLayout* SegmentViews::makeChoosers()
{
    auto* row = new QHBoxLayout;
    row->addWidget(makeLabel(tr("Attribute"), m_Attribute));
    row->addWidget(m_Attribute, 1);
    row->addWidget(makeLabel(tr("Layout"), m_Layout));
    row->addWidget(m_Layout, 1);
    return row;
}

void SegmentViews::AddLayout(const QString& name, QWidget* widget)
{
    m_Stack->addWidget(widget);
    m_Layout->addItem(name);
}

void SegmentViews::SetDataSet(DataSet* dataSet)
{
    if (dataSet == m_DataSet)
        return;
    Clear();
    m_DataSet = dataSet;
    m_Table->SetDataSet(dataSet);
    RebuildAttributes();
}

void SegmentViews::SetCutCollection(CutCollection* cuts)
{
    if (cuts != m_CutCollection)
        Clear();
    m_CutCollection = cuts;
    m_Table->SetCutCollection(cuts);
}

void SegmentViews::RebuildAttributes()
{
    const QSignalBlocker blocker(m_Attribute);
    m_Attribute->clear();
    for (int i = 0; m_DataSet && i < m_DataSet->GetAttributeCount(); ++i)
        AddAttribute(i, m_DataSet->GetAttributeName(i));
    sayAttribute();
}

void SegmentViews::AddAttribute(int index, const QString& name)
{
    const int place = m_Attribute->findData(index);
    if (place == -1)
        m_Attribute->addItem(name, index);
    else
        m_Attribute->setItemText(place, name);
}

int SegmentViews::GetAttribute() const
{
    return m_Attribute->currentIndex() == -1 ? -1 : m_Attribute->currentData().toInt();
}

void SegmentViews::sayAttribute()
{
    emit AttributeChanged(GetAttribute());
}

void SegmentViews::ShowAttribute(int attribute)
{
    const int place = m_Attribute->findData(attribute);
    if (place == -1)
        return;
    // Says so, and comes back here, when it is another one.
    m_Attribute->setCurrentIndex(place);
    m_Table->SetAttribute(attribute);
    m_Overlay->ChangeAttributeID(attribute);
}

void SegmentViews::Add(CutSegment* segment, const QColor& rowColor, const QColor& lineColor)
{
    if (!segment || !m_DataSet || m_Table->Contains(segment))
        return;
    m_Table->AddSegment(segment, rowColor);
    const int attribute = GetAttribute();
    if (attribute >= 0 && attribute < m_DataSet->GetAttributeCount())
        m_Overlay->AddLine(m_DataSet, segment, attribute, segment->GetFrom(), segment->GetTo(),
                           lineColor);
}

void SegmentViews::Remove(const QList<CutSegment*>& segments)
{
    m_Table->RemoveSegments(segments);
    m_Overlay->RemoveCutSegments(segments);
}

void SegmentViews::RemoveFromOthers(CutSegment* segment, const QObject* sender)
{
    if (sender != m_Table)
        m_Table->RemoveSegment(segment);
    if (sender != m_Overlay)
        m_Overlay->RemoveCutSegment(segment);
}

void SegmentViews::Clear()
{
    m_Table->Clear();
    m_Overlay->ClearLines();
}

void SegmentViews::BeginBulk()
{
    m_Table->BeginBulk();
}

void SegmentViews::EndBulk()
{
    m_Table->EndBulk();
    m_Overlay->RepaintLines();
}
