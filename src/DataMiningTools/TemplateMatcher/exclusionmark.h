#pragma once

/// The confidence of a row that lies in a segment left out of a search: no data. Consumers test
/// for exactly this value.
constexpr float ExclusionMark = -200000.0F;
