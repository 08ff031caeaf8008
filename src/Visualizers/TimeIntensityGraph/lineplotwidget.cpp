#include "lineplotwidget.h"

#include <QPainter>

LinePlotWidget::LinePlotWidget(int attribute, QWidget* parent)
    : QWidget(parent), LinePlot(attribute)
{
}

void LinePlotWidget::SetRecording(LiveRecording* recording)
{
    SetDataSet(DataOf(recording));
    if (recording)
        connect(recording, &LiveRecording::AttributesChanged, this, [this] {
            if (FollowAttribute())
                update();
        });
}

void LinePlotWidget::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    paintPlot(painter, 1.0);
}

void LinePlotWidget::paintPlot(QPainter& painter, double opacity)
{
    painter.fillRect(rect(), Qt::white);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setOpacity(opacity);
    Paint(painter, true);
    painter.restore();
}

void LinePlotWidget::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    SetSize(float(height()), float(width()));
}
