#include "statistics/concentration.h"

#include <cmath>

namespace {

double squared(double number)
{
    return number * number;
}

bool isUsable(double x, double y, const Preparation& made)
{
    return x >= 0 && y > 0 && made.tablets > 0 && made.tabletMean > 0 && made.tabletSd >= 0 &&
           made.quantity > 0 && made.quantitySd >= 0;
}

/// Squared relative error of all marker grains added.
double tabletVariance(const Preparation& made)
{
    return squared(made.tabletSd / made.tabletMean) / made.tablets;
}

double quantityVariance(const Preparation& made)
{
    return squared(made.quantitySd / made.quantity);
}

} // namespace

std::optional<Concentration> influxOf(double x, double y, const Preparation& made, Accumulation growth)
{
    if (!isUsable(x, y, made) || !(growth.rate > 0) || !(growth.sd >= 0))
        return {};
    Concentration found;
    if (x == 0)
        return found;
    const double factor = made.tablets * made.tabletMean / made.quantity * growth.rate;
    const double growthVariance = squared(growth.sd / growth.rate);
    found.value = x / y * factor;
    found.relativeError =
        std::sqrt(1 / x + 1 / y + tabletVariance(made) + quantityVariance(made) + growthVariance);
    found.standardError = found.value * found.relativeError;
    if (y < leastMarkers)
        return found;
    const Limits ratio = *limitsOutside(x, y);
    const double countSigma = std::log(ratio.upper / ratio.lower) / (2 * normal95);
    const double sigma = std::sqrt(squared(countSigma) + std::log1p(tabletVariance(made)) +
                                   std::log1p(quantityVariance(made)) + std::log1p(growthVariance));
    const double middle = std::sqrt(ratio.lower * ratio.upper) * factor;
    const double spread = std::exp(normal95 * sigma);
    found.limits = Limits{middle / spread, middle * spread};
    return found;
}

std::optional<Concentration> concentrationOf(double x, double y, const Preparation& made)
{
    return influxOf(x, y, made, {1, 0});
}

std::optional<double> markersNeeded(double x, double y, const Preparation& made, double relativeError)
{
    if (!isUsable(x, y, made) || !(x > 0) || !(relativeError > 0))
        return {};
    const double left = squared(relativeError) - tabletVariance(made) - quantityVariance(made);
    if (left <= 0)
        return {};
    return (1 + y / x) / left;
}
