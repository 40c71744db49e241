#include "statistics/limits.h"

#include <algorithm>
#include <cmath>

constexpr double z2 = normal95 * normal95;

std::optional<Limits> limitsInside(double x, double n)
{
    if (!(n > 0) || !(x >= 0) || x > n)
        return {};
    const double p = x / n;
    const double middle = p + z2 / (2 * n);
    const double reach = normal95 * std::sqrt(p * (1 - p) / n + z2 / (4 * n * n));
    const double scale = 1 + z2 / n;
    // At the ends the two terms are equal but for their last digit.
    return Limits{x == 0 ? 0 : (middle - reach) / scale, x == n ? 1 : (middle + reach) / scale};
}

std::optional<Limits> limitsOutside(double x, double n)
{
    if (!(n > z2) || !(x >= 0))
        return {};
    const double u = x / n;
    const double middle = u + z2 / (2 * n);
    const double reach = normal95 * std::sqrt(u * (1 + u) / n + z2 / (4 * n * n));
    const double scale = 1 - z2 / n;
    return Limits{x == 0 ? 0 : (middle - reach) / scale, (middle + reach) / scale};
}

std::optional<double> sumNeededInside(double p, double halfWidth)
{
    if (!(halfWidth > 0) || !(p >= 0) || p > 1)
        return {};
    const double w = p * (1 - p);
    const double h2 = halfWidth * halfWidth;
    return std::max(0.0, z2 * (w - 2 * h2 + std::sqrt(w * w + h2 * (1 - 4 * w))) / (2 * h2));
}

std::optional<double> sumNeededOutside(double p, double halfWidth)
{
    if (!(halfWidth > 0) || !(p >= 0))
        return {};
    const double w = p * (1 + p);
    const double h2 = halfWidth * halfWidth;
    return z2 * (w + 2 * h2 + std::sqrt(w * w + h2 * (1 + 4 * w))) / (2 * h2);
}
