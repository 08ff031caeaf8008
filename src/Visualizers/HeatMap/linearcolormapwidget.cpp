#include "linearcolormapwidget.h"

#include "colormaps.h"
#include <QLinearGradient>
#include <QPainter>

namespace
{

// The scale looks the same whatever scheme the plots around it use.
constexpr int colorMap = 3;

QColor colorAt(double value)
{
    float red = 0;
    float green = 0;
    float blue = 0;
    ColorMaps::GetColor(float(value), &red, &green, &blue, colorMap);
    return {int(red * 255.0F), int(green * 255.0F), int(blue * 255.0F), 255};
}

} // namespace

LinearColorMapWidget::LinearColorMapWidget(QWidget* parent) : QWidget(parent)
{
    setMinimumSize(100, 30);
}

void LinearColorMapWidget::SetRange(double minimum, double maximum)
{
    m_Minimum = minimum;
    m_Maximum = maximum;
    setToolTip(tr("From %1 to %2").arg(minimum).arg(maximum));
}

void LinearColorMapWidget::paintEvent(QPaintEvent*)
{
    const QRect area(0, 0, width() - 1, height() - 1);
    QLinearGradient gradient(0, 0, width() - 1, 0);
    for (double value = 0.0; value <= 1.0; value += 0.01)
        gradient.setColorAt(value, colorAt(value));
    QPainter painter(this);
    painter.setPen(Qt::black);
    painter.fillRect(area, gradient);
    painter.drawRect(area);
}
