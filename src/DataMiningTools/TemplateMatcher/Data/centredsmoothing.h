#pragma once

#include <vector>

/// A signal smoothed by polynomials of order 4, fitted by least squares (Savitzky and Golay 1964),
/// in double precision. With H = 2 * (window / 2), a value becomes that of the polynomial through
/// itself and H values on each side; each of the first and last H values that of the polynomial
/// through the first or last 2 * H + 1. So nothing is late, a constant stays what it is and so does
/// every polynomial up to the order.
///
/// A signal too short for that is fitted over as many values as it has, an odd number. It stays as
/// it is with less than seven of them and with a window below 4, where nothing would be evened out.
std::vector<double> CentredSmoothedSignal(const std::vector<double>& signal, int window);
