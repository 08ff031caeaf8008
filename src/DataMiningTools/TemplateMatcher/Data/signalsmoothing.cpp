#include "signalsmoothing.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace
{

constexpr int TERMS = 5;
using Vector = std::array<float, TERMS>;
using Matrix = std::array<Vector, TERMS>;

// Solves matrix * x = right by LU decomposition with row pivots; right is taken along.
Vector solve(Matrix matrix, Vector right)
{
    for (size_t column = 0; column < TERMS; ++column) {
        size_t pivot = column;
        for (size_t row = column + 1; row < TERMS; ++row) {
            if (std::abs(matrix[row][column]) > std::abs(matrix[pivot][column]))
                pivot = row;
        }
        std::swap(matrix[column], matrix[pivot]);
        std::swap(right[column], right[pivot]);
        for (size_t row = column + 1; row < TERMS; ++row) {
            const float factor = matrix[row][column] / matrix[column][column];
            for (size_t i = column; i < TERMS; ++i)
                matrix[row][i] -= factor * matrix[column][i];
            right[row] -= factor * right[column];
        }
    }
    Vector solution{};
    for (size_t row = TERMS; row-- > 0;) {
        float rest = right[row];
        for (size_t i = row + 1; i < TERMS; ++i)
            rest -= matrix[row][i] * solution[i];
        solution[row] = rest / matrix[row][row];
    }
    return solution;
}

// The normal equations of a polynomial through points from -half to half.
Matrix momentMatrix(int half)
{
    Matrix matrix{};
    for (size_t i = 0; i < TERMS; ++i) {
        for (size_t j = 0; j < TERMS; ++j) {
            const double power = double(i + j);
            for (int k = -half; k <= half; ++k)
                matrix[i][j] += float(std::pow(double(k), power));
        }
    }
    return matrix;
}

// The symmetric response of a filter of that size. An even size has no room for the outermost
// weights, which makes results a little smaller.
std::vector<float> makeResponse(const std::vector<float>& weights, size_t size)
{
    std::vector<float> response(size, 0.0F);
    response[0] = weights[0];
    for (size_t i = 1; i < (size + 1) / 2; ++i)
        response[i] = response[size - i] = weights[i];
    return response;
}

// One element of the circular convolution of the response with as many values: what transforms,
// their product and the way back give, for any size.
float convolvedElement(const std::vector<float>& response, const double* values, size_t element)
{
    const size_t size = response.size();
    float sum = 0.0F;
    for (size_t i = 0; i < size; ++i)
        sum += response[i] * float(values[(element + size - i) % size]);
    return sum;
}

} // namespace

std::vector<float> SavitzkyGolayWeights(int half, int size)
{
    const Vector terms = solve(momentMatrix(half), Vector{1.0F});
    std::vector<float> weights(size_t(size), 0.0F);
    for (int k = -half; k <= half; ++k) {
        float weight = terms[TERMS - 1];
        for (size_t i = TERMS - 1; i-- > 0;)
            weight = weight * float(k) + terms[i];
        weights[size_t((size - k) % size)] = weight;
    }
    return weights;
}

std::vector<double> SmoothedSignal(const std::vector<double>& signal, int window)
{
    const int length = int(signal.size());
    if (window < 2 || length / 4 < window)
        return signal;
    const int half = 2 * (window / 2);
    const int points = window + 1 + half;
    const auto response = makeResponse(SavitzkyGolayWeights(half, points), size_t(points) - 1);
    std::vector<double> smoothed = signal;
    // From where they end up in the result, back to where they are computed.
    for (int i = 2 * window; i < length - 2 * window; ++i) {
        const int first = i - window / 2 - half;
        smoothed[size_t(i)] =
            double(convolvedElement(response, signal.data() + first, size_t(window / 2) + 1));
    }
    return smoothed;
}
