#include "graphtoolbar.h"

#include "cuttablelineplotwidget.h"
#include "resourcepath.h"
#include "zoomwidget.h"
#include <QCheckBox>
#include <QIcon>
#include <QPushButton>

namespace
{

QPushButton* makeButton(const QString& text, const char* icon, const QString& toolTip)
{
    auto* button = new QPushButton(QIcon(ResourcePath(QLatin1String(icon))), text);
    button->setToolTip(toolTip);
    return button;
}

} // namespace

GraphToolBar::GraphToolBar(CuttableLinePlotWidget* plot, ZoomWidget* zoom, QWidget* parent)
    : QToolBar(tr("Graph Options"), parent)
{
    QPushButton* cut = makeButton(tr("Cut Graph"), "icons/cut.png",
                                  tr("Cut the selected range out of its segment"));
    QPushButton* merge = makeButton(tr("Merge Graph"), "icons/merge.png",
                                    tr("Merge the segments in the selected range"));
    zoom->setMaximumWidth(400);
    zoom->setMinimum(1);
    zoom->setMaximum(500);
    zoom->setSingleStep(1);
    auto* overlay = new QCheckBox(tr("Axis Overlay"));
    overlay->setToolTip(tr("Show the value axes beside the pointer"));
    overlay->setChecked(plot->GetEnableOverlay());
    connect(cut, &QPushButton::clicked, this, &GraphToolBar::CutClicked);
    connect(merge, &QPushButton::clicked, this, &GraphToolBar::MergeClicked);
    connect(overlay, &QCheckBox::clicked, plot, &CuttableLinePlotWidget::SetEnableOverlay);

    addWidget(cut);
    addWidget(merge);
    addWidget(zoom);
    addWidget(overlay);
}
