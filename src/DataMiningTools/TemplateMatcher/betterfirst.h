#pragma once

#include "matchextraction.h"

/// Of matches whose extents overlap, also those of different frequency factors, the one of highest
/// confidence; of several of the same confidence the one with the earlier centre, and then that of
/// the first factor. From the best match on, each one drops all lesser ones that it overlaps, so
/// that a match which is dropped drops none. Extents that only touch do not overlap, and those of
/// no rows overlap none. In the order of n log n.
///
/// matches: of the results, ascending per factor; widths: of the template, per frequency factor.
CenterPoints KeepBetterMatches(const CenterPoints& matches, const std::vector<int>& widths,
                               const SearchResults& results);
