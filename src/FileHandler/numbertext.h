#pragma once

#include <string_view>

/// The number that a text means, exactly as QString::toDouble reads it: blanks around it, a
/// plus sign, an exponent, "inf" and "nan" are understood; 0 for a text that is no number.
/// text: UTF-8.
double NumberFromText(std::string_view text);
