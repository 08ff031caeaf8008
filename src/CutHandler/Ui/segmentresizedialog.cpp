#include "segmentresizedialog.h"

#include "dialogbuttons.h"
#include "segmentresizewidget.h"
#include <QLabel>
#include <QPushButton>

namespace
{

constexpr QSize SMALLEST(750, 300);

} // namespace

SegmentResizeDialog::SegmentResizeDialog(QWidget* parent)
    : QDialog(parent), m_ResizeWidget(new SegmentResizeWidget)
{
    setWindowTitle(tr("Segment Resize Dialog"));
    setMinimumSize(SMALLEST);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(new QLabel(tr("<h2>Resize Segment</h2>")));
    layout->addWidget(m_ResizeWidget, 1);
    layout->addLayout(MakeDialogButtons(this, tr("Save"), &m_Save));
    connect(m_ResizeWidget, &SegmentResizeWidget::SelectionChanged, this,
            &SegmentResizeDialog::enableSave);
    m_ResizeWidget->setFocus();
}

// The boxes are as wide as the numbers that they were limited to since.
void SegmentResizeDialog::showEvent(QShowEvent* event)
{
    setMinimumSize(layout()->minimumSize().expandedTo(SMALLEST));
    QDialog::showEvent(event);
}

void SegmentResizeDialog::enableSave()
{
    m_Save->setEnabled(m_ResizeWidget->GetSelection().GetLength() >= 0);
    m_Save->setToolTip(m_Save->isEnabled() ? QString()
                                           : tr("The cut must not start behind its end"));
}
