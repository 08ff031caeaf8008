#pragma once

#include <cmath>

/// The angle of a rise over a run above the horizontal, -pi/2 to pi/2: std::atan2 for a run that is
/// not negative, without branches, so that a loop may take several at once.
///
/// The angle is split off at tan(pi/8) and its inverse, so that the arc tangent of 0.4142 at most
/// is left, for which a polynomial serves (Muller 2016, "Elementary Functions", on argument
/// reduction; minimax coefficients after Remez 1934, relative error 1.3e-18). Accurate to two units
/// in the last place.
///
/// rise: up to 1e150 in size, run: 0 to 1e150; either may be infinite. 0 over 0 gives 0 with the
/// sign of rise. Not-a-number gives not-a-number.
inline double ElevationAngle(double rise, double run)
{
    constexpr double quarter = 0.78539816339744828; // pi / 4
    constexpr double quarterRest = 3.061616997868383e-17;
    constexpr double split = 0.41421356237309503; // tan(pi / 8)
    constexpr double largest = 1.7976931348623157e308;
    constexpr double smallest = 2.2250738585072014e-308;
    // What decides has each constant in front: a comparison with not-a-number passes it on.
    double height = std::fabs(rise);
    height = largest < height ? largest : height;
    run = largest < run ? largest : run;
    // The tangent of the angle less none, one or two quarters of pi.
    const bool isOverOne = height > split * run;
    const bool isOverThree = split * height > run;
    const double above = (isOverThree ? 0.0 : height) - (isOverOne ? run : 0.0);
    const double along = (isOverOne ? height : 0.0) + (isOverThree ? 0.0 : run);
    const double tangent = above / (smallest > along ? smallest : along);
    const double square = tangent * tangent;
    double series = -0.01790501824302882;
    series = series * square + 0.03806212010642927;
    series = series * square - 0.05039189636674708;
    series = series * square + 0.058478590975578976;
    series = series * square - 0.06663099179933149;
    series = series * square + 0.07692059715425502;
    series = series * square - 0.0909089772515136;
    series = series * square + 0.11111110782152478;
    series = series * square - 0.14285714280166556;
    series = series * square + 0.1999999999995325;
    series = series * square - 0.333333333333332;
    const double quarters = (isOverOne ? quarter : 0.0) + (isOverThree ? quarter : 0.0);
    const double rest = quarters * (quarterRest / quarter);
    const double angle = quarters + (tangent + (tangent * (square * series) + rest));
    return std::copysign(angle, rise);
}
