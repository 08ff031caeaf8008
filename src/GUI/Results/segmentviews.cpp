#include "segmentviews.h"

#include "attributebox.h"
#include "cutsegment.h"
#include "dataset.h"
#include "multiplelineplotwidget.h"
#include "tableresultwidget.h"
#include <QLabel>
#include <QStackedWidget>
#include <QVBoxLayout>

namespace
{

QLabel* makeLabel(const QString& text, QWidget* buddy)
{
    auto* label = new QLabel(text);
    label->setBuddy(buddy);
    return label;
}

} // namespace

SegmentViews::SegmentViews(QWidget* parent)
    : QWidget(parent), m_Attribute(new AttributeBox(tr("The attribute that the lines show"))),
      m_Layout(new QComboBox), m_Stack(new QStackedWidget), m_Table(new TableResultWidget),
      m_Overlay(new MultipleLinePlotWidget)
{
    m_Attribute->setMinimumContentsLength(4);
    m_Layout->setToolTip(tr("How the segments are shown"));
    m_Layout->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    for (QComboBox* chooser : {static_cast<QComboBox*>(m_Attribute), m_Layout})
        chooser->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addLayout(makeChoosers());
    layout->addWidget(m_Stack, 1);
    AddLayout(tr("Sparkline Table"), m_Table);
    AddLayout(tr("Graph Overlay"), m_Overlay);

    connect(m_Attribute, &AttributeBox::AttributeChanged, this, &SegmentViews::AttributeChanged);
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
    m_Attribute->SetDataSet(m_DataSet);
}

void SegmentViews::UpdateAttributes()
{
    m_Attribute->UpdateAttributes();
}

void SegmentViews::ShowAttribute(int attribute)
{
    // Says so, and comes back here, when it is another one.
    m_Attribute->SetAttribute(attribute);
    m_Table->SetAttribute(attribute);
    m_Overlay->ChangeAttributeID(attribute);
}

void SegmentViews::Show(const std::vector<ShownSegment>& segments)
{
    const SegmentTableModel* rows = m_Table->GetModel();
    QList<CutSegment*> gone;
    auto next = segments.begin();
    for (int row = 0; row < rows->rowCount(); ++row) {
        if (next != segments.end() && rows->IsShownBy(row, *next))
            ++next;
        else
            gone.append(rows->GetSegment(row));
    }
    if (gone.isEmpty() && next == segments.end())
        return;
    Remove(gone);
    if (segments.end() - next > 1)
        BeginBulk();
    for (; next != segments.end(); ++next)
        Add(*next);
    EndBulk();
}

void SegmentViews::Add(const ShownSegment& shown)
{
    CutSegment* segment = shown.m_Segment;
    if (!segment || !m_DataSet || m_Table->Contains(segment))
        return;
    m_Table->AddSegment(segment, shown.m_RowColor);
    const int attribute = m_Attribute->GetAttribute();
    if (attribute >= 0 && attribute < m_DataSet->GetAttributeCount())
        m_Overlay->AddLine(m_DataSet, segment, attribute, segment->GetFrom(), segment->GetTo(),
                           shown.m_LineColor);
}

void SegmentViews::Remove(const QList<CutSegment*>& segments)
{
    m_Table->RemoveSegments(segments);
    m_Overlay->RemoveCutSegments(segments);
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
