#include "colormaps.h"

#include <QImage>
#include <QLinearGradient>
#include <QPainter>
#include <algorithm>
#include <cmath>

namespace
{

constexpr int COLUMNS = 100;
constexpr int ROWS = 10;

QImage paintGradient(const QGradientStops& stops)
{
    QImage image(COLUMNS, ROWS, QImage::Format_RGB32);
    QLinearGradient gradient(0, 0, COLUMNS, ROWS);
    gradient.setStops(stops);
    QPainter(&image).fillRect(image.rect(), gradient);
    return image;
}

// The one set of gradients of the process.
const QImage& gradientImage(int scheme)
{
    static const QImage images[] = {
        paintGradient({{0, Qt::blue}, {0.5, Qt::green}, {1, Qt::red}}),
        paintGradient({{0, Qt::blue}, {1, Qt::yellow}}),
        paintGradient({{0, Qt::yellow}, {1, Qt::blue}}),
    };
    return images[scheme - 1];
}

// Not-a-number counts as 0.
float clamped(float value)
{
    return value > 0 ? std::min(value, 1.0F) : 0.0F;
}

} // namespace

void ColorMaps::InitColorMaps()
{
    gradientImage(1);
}

void ColorMaps::GetColor(float value, float* r, float* g, float* b, int scheme)
{
    if (scheme == 0) {
        GetRainbowColor(value, r, g, b);
        return;
    }
    if (scheme < 1 || scheme > 3)
        return;
    const int column = std::min(int(double(clamped(value)) * COLUMNS), COLUMNS - 1);
    const QColor color = gradientImage(scheme).pixelColor(column, 0);
    *r = float(color.redF());
    *g = float(color.greenF());
    *b = float(color.blueF());
}

void ColorMaps::GetRainbowColor(float value, float* r, float* g, float* b)
{
    const float c = 4 * clamped(value) + 1;
    *r = std::max(0.0F, (3 - std::abs(c - 4) - std::abs(c - 5)) / 2);
    *g = std::max(0.0F, (4 - std::abs(c - 2) - std::abs(c - 4)) / 2);
    *b = std::max(0.0F, (3 - std::abs(c - 1) - std::abs(c - 2)) / 2);
}

QString ColorMaps::GetColorMapName(int scheme)
{
    switch (scheme) {
    case 0:
        return QStringLiteral("Rainbow");
    case 1:
        return QStringLiteral("Interval RGB");
    case 2:
        return QStringLiteral("Blue To Yellow");
    case 3:
        return QStringLiteral("Yellow To Black");
    default:
        return {};
    }
}
