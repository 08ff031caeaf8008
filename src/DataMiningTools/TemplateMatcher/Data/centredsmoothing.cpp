#include "centredsmoothing.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace
{

using Values = std::vector<double>;

constexpr int terms = 5;

double product(const Values& a, const double* b)
{
    return std::inner_product(a.begin(), a.end(), b, 0.0);
}

// Orthonormal polynomials of orders 0 to 4 over 2 * half + 1 points: the fit is then a projection,
// which stays accurate for any number of points.
std::vector<Values> orthonormalPolynomials(int half)
{
    std::vector<Values> basis;
    for (int order = 0; order < terms; ++order) {
        Values values;
        for (int k = -half; k <= half; ++k)
            values.push_back(std::pow(double(k) / half, order));
        // Twice, for what the first pass leaves by rounding.
        for (int pass = 0; pass < 2; ++pass) {
            for (const Values& lower : basis) {
                const double part = product(lower, values.data());
                for (size_t i = 0; i < values.size(); ++i)
                    values[i] -= part * lower[i];
            }
        }
        const double norm = std::sqrt(product(values, values.data()));
        std::for_each(values.begin(), values.end(), [=](double& value) { value /= norm; });
        basis.push_back(std::move(values));
    }
    return basis;
}

// What each point adds to the fitted polynomial's value at one of them.
Values weightsAt(const std::vector<Values>& basis, size_t position)
{
    Values weights(basis.front().size(), 0.0);
    for (const Values& polynomial : basis) {
        for (size_t i = 0; i < weights.size(); ++i)
            weights[i] += polynomial[position] * polynomial[i];
    }
    return weights;
}

} // namespace

std::vector<double> CentredSmoothedSignal(const std::vector<double>& signal, int window)
{
    const int length = int(signal.size());
    const int half = std::min(2 * (window / 2), (length - 1) / 2);
    // A polynomial of order 4 goes through five points.
    if (half <= 2)
        return signal;
    const auto basis = orthonormalPolynomials(half);
    const int points = 2 * half + 1;
    std::vector<double> smoothed(signal.size());
    const Values middle = weightsAt(basis, size_t(half));
    for (int i = half; i < length - half; ++i)
        smoothed[size_t(i)] = product(middle, signal.data() + i - half);
    for (int i = 0; i < half; ++i) {
        const int last = length - 1 - i;
        smoothed[size_t(i)] = product(weightsAt(basis, size_t(i)), signal.data());
        smoothed[size_t(last)] =
            product(weightsAt(basis, size_t(points - 1 - i)), signal.data() + length - points);
    }
    return smoothed;
}
