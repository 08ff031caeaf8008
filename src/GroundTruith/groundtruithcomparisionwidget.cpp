#include "groundtruithcomparisionwidget.h"

#include "attributebox.h"
#include "cuttablelineplotwidget.h"
#include "groundtruithbehaviorcollection.h"
#include "groundtruithwidget.h"
#include "openwindow.h"
#include "readlabels.h"
#include "zoomwidget.h"
#include <QLabel>
#include <QLayout>
#include <QLoggingCategory>
#include <QScrollArea>
#include <QScrollBar>
#include <QToolBar>
#include <algorithm>

Q_LOGGING_CATEGORY(lcGroundTruith, "skerrymoor.groundtruith", QtWarningMsg)

GroundTruithComparisionWidget::GroundTruithComparisionWidget(QWidget* parent)
    : QMainWindow(parent), m_ScrollArea(new QScrollArea), m_Views(new QWidget),
      m_ZoomWidget(new ZoomWidget),
      m_Attributes(new AttributeBox(tr("The attribute that both graphs show"))),
      m_GroundTruith(new GroundTruithWidget), m_LinePlot(new CuttableLinePlotWidget),
      m_View(m_ScrollArea, m_ZoomWidget)
{
    setWindowTitle(tr("Ground Truith Comparision"));
    makeToolBar();
    makeViews();
    connect(m_ZoomWidget, &ZoomWidget::ValueChanged, this,
            &GroundTruithComparisionWidget::resizeLinePlotWidget);
    connect(m_Attributes, &AttributeBox::AttributeChanged, this,
            &GroundTruithComparisionWidget::attributeChanged);
    connect(&m_View, &ZoomedView::SizeAsked, this, &GroundTruithComparisionWidget::resizeViews);
    connect(m_ScrollArea->horizontalScrollBar(), &QScrollBar::valueChanged, &m_View,
            &ZoomedView::UpdateVisiblePart);
    // The graph paints what is in sight, and has to be told.
    connect(&m_View, &ZoomedView::VisiblePartChanged, m_LinePlot,
            &CuttableLinePlotWidget::SetVisibleRange);
    resize(fontMetrics().averageCharWidth() * 120, fontMetrics().height() * 30);
}

void GroundTruithComparisionWidget::makeToolBar()
{
    m_ZoomWidget->setMaximumWidth(300);
    m_ZoomWidget->setMinimum(1);
    m_ZoomWidget->setMaximum(200);
    m_ZoomWidget->setSingleStep(1);
    m_Attributes->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    auto* caption = new QLabel(tr("Data Attributes: "));
    caption->setBuddy(m_Attributes);
    QToolBar* toolBar = addToolBar(tr("Graph Options"));
    toolBar->addWidget(m_ZoomWidget);
    toolBar->addWidget(caption);
    toolBar->addWidget(m_Attributes);
}

void GroundTruithComparisionWidget::makeViews()
{
    // Most entries ask for changes, which nobody makes from here.
    m_LinePlot->setContextMenuPolicy(Qt::PreventContextMenu);
    auto* views = new QVBoxLayout(m_Views);
    views->setContentsMargins(0, 0, 0, 0);
    views->addWidget(m_GroundTruith);
    views->addWidget(m_LinePlot);
    m_ScrollArea->setWidget(m_Views);
    m_ScrollArea->setMinimumHeight(180);
    m_ScrollArea->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);

    auto* central = new QWidget;
    auto* column = new QVBoxLayout(central);
    column->addWidget(m_ScrollArea);
    setCentralWidget(central);
}

void GroundTruithComparisionWidget::SetBehaviorCollection(GroundTruithBehaviorCollection* behaviors)
{
    m_BehaviorCollection = behaviors;
    qCDebug(lcGroundTruith) << "Comp size: " << (behaviors ? behaviors->Names().size() : 0);
    m_GroundTruith->SetBehaviorCollection(behaviors);
}

void GroundTruithComparisionWidget::SetRecording(LiveRecording* recording)
{
    m_LinePlot->SetRecording(recording);
    SetLabelCollection(LabelsOf(recording));
    SetCutCollection(CutsOf(recording));
    m_GroundTruith->SetDataSet(DataOf(recording));
    m_Attributes->SetRecording(recording);
}

void GroundTruithComparisionWidget::SetDataSet(DataSet* dataSet)
{
    m_GroundTruith->SetDataSet(dataSet);
    m_LinePlot->SetDataSet(dataSet);
    m_Attributes->SetDataSet(dataSet);
}

void GroundTruithComparisionWidget::SetLabelCollection(LabelCollection* labels)
{
    m_LabelCollection = labels;
    m_LinePlot->SetLabelCollection(labels);
}

void GroundTruithComparisionWidget::SetCutCollection(CutCollection* cuts)
{
    m_CutCollection = cuts;
    m_LinePlot->SetCutCollection(cuts);
}

void GroundTruithComparisionWidget::attributeChanged(int index)
{
    if (index < 0)
        return;
    m_GroundTruith->SetAttribute(index);
    m_LinePlot->ClearAndAddPlot(index);
}

void GroundTruithComparisionWidget::resizeViews(const QSize& size)
{
    const QSize half(size.width(), std::max(int(m_ScrollArea->height() * 0.5 - 20), 1));
    m_GroundTruith->setFixedSize(half);
    m_LinePlot->setFixedSize(half);
    m_Views->resize(size);
}

void ShowGroundTruith(const SharedRecording& recording, QWidget* parent)
{
    auto reference = ReadLabels(parent, recording->GetDataSet(),
                                GroundTruithComparisionWidget::tr("Text (*.txt)"));
    if (!reference)
        return;
    auto* window = new GroundTruithComparisionWidget;
    window->SetBehaviorCollection(reference.get());
    window->SetRecording(recording.get());
    using Shown = std::pair<SharedRecording, decltype(reference)>;
    OpenWindow(window, parent, std::make_shared<Shown>(recording, std::move(reference)));
}
