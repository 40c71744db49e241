#include "statistics/richness.h"

#include <cmath>

namespace {

/// What ln Gamma(z) is beyond (z - 1/2) ln z - z + ln(2 pi) / 2; z is at least 1.
double stirlingRest(double z)
{
    if (z < 16) {
        constexpr double halfLogTwoPi = 0.918938533204672742;
        return std::lgamma(z) - ((z - 0.5) * std::log(z) - z + halfLogTwoPi);
    }
    const double z2 = z * z;
    return (1.0 / 12 - (1.0 / 360 - (1.0 / 1260 - 1.0 / 1680 / z2) / z2) / z2) / z;
}

/// ln of C(n - k, m) / C(n, m), the probability that k of n individuals all stay out of a draw of m; k + m <=
/// n. Four log-gammas of the size of n ln n would leave a rare taxon no digit of it. Their Stirling series
/// are taken together instead, so that the large terms cancel before they are computed.
double logChanceUnseen(double n, double k, double m)
{
    const double z = n + 1;
    const double terms = (z - k - 0.5) * std::log1p(-k / z) - (z - k - m - 0.5) * std::log1p(-(k + m) / z) +
                         (z - m - 0.5) * std::log1p(-m / z);
    return terms + (stirlingRest(z - k) - stirlingRest(z - k - m)) - (stirlingRest(z) - stirlingRest(z - m));
}

} // namespace

double Richness::newTaxa(double m) const
{
    if (unseen == 0)
        return 0;
    return -unseen * std::expm1(m * std::log1p(-singletons / (individuals * unseen + singletons)));
}

std::optional<Richness> measureRichness(std::span<const std::int32_t> counts)
{
    Richness found;
    double logSum = 0;
    double squares = 0;
    for (const std::int32_t count : counts) {
        if (count < 0)
            return {};
        if (count == 0)
            continue;
        const double x = count;
        found.individuals += x;
        ++found.taxa;
        found.singletons += count == 1;
        found.doubletons += count == 2;
        logSum += x * std::log(x);
        squares += x * x;
    }
    const double n = found.individuals;
    if (n == 0)
        return {};
    const double f1 = found.singletons;
    const double f2 = found.doubletons;
    found.unseen = (n - 1) / n * (f2 > 0 ? f1 * f1 / (2 * f2) : f1 * (f1 - 1) / 2);
    found.chao1 = found.taxa + found.unseen;
    found.chao1BiasCorrected = found.taxa + f1 * (f1 - 1) / (2 * (f2 + 1));
    found.goodCoverage = 1 - f1 / n;
    found.coverage = f1 == 0 ? 1 : 1 - f1 / n * n * found.unseen / (n * found.unseen + f1);
    found.hill = {found.taxa, std::exp(std::log(n) - logSum / n), n * n / squares};
    return found;
}

std::optional<double> rarefiedTaxa(std::span<const std::int32_t> counts, double m)
{
    double n = 0;
    for (const std::int32_t count : counts) {
        if (count < 0)
            return {};
        n += count;
    }
    if (!(m >= 0) || m > n)
        return {};
    double expected = 0;
    for (const std::int32_t count : counts) {
        if (count == 0 || m == 0)
            continue;
        expected += count + m > n ? 1 : -std::expm1(logChanceUnseen(n, count, m));
    }
    return expected;
}
