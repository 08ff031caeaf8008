#pragma once

/// The room left of plots and maps for the value axis and its numbers, in logical pixels. As the
/// right margin of a plot it ends the time axis just inside the plot, which stands so far right.
constexpr int PlotLeftMargin = 40;
