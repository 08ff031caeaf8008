#pragma once

#include <QString>

/// The colour schemes of all value-coloured views: 0 "Rainbow", 1 "Interval RGB",
/// 2 "Blue To Yellow", 3 "Yellow To Black". The last one runs from yellow to blue, not to black.
namespace ColorMaps
{

/// Paints the shared gradients of schemes 1 to 3. Called once by main; whoever comes earlier
/// gets them painted on first use.
void InitColorMaps();

/// The colour of a value between 0 and 1 (others are clamped), with components between 0 and 1.
/// Leaves the components as they are for an unknown scheme.
void GetColor(float value, float* r, float* g, float* b, int scheme);

/// The computed scheme 0: blue, cyan, green, yellow, red.
void GetRainbowColor(float value, float* r, float* g, float* b);

/// An empty text for an unknown scheme.
QString GetColorMapName(int scheme);

} // namespace ColorMaps
