#include "statistics/homogeneity.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <vector>

namespace {

constexpr double leastExpected = 5;

/// The sum of the counts, or nothing if one is negative or all are zero.
std::optional<double> sumOf(std::span<const std::int32_t> counts)
{
    double sum = 0;
    for (const std::int32_t count : counts) {
        if (count < 0)
            return {};
        sum += count;
    }
    return sum > 0 ? std::optional(sum) : std::nullopt;
}

struct Class {
    double first = 0;
    double second = 0;
    double both() const { return first + second; }
};

/// x^a e^-x / Gamma(a), the factor that both expansions share.
double gammaFactor(double a, double x)
{
    return std::exp(a * std::log(x) - x - std::lgamma(a));
}

/// P(a, x) by its power series (DLMF 8.11.4), for x < a + 1.
double lowerGamma(double a, double x)
{
    double term = 1 / a;
    double sum = term;
    for (double n = a + 1; term > sum * std::numeric_limits<double>::epsilon(); ++n)
        sum += term *= x / n;
    return sum * gammaFactor(a, x);
}

/// Q(a, x) by its continued fraction (DLMF 8.9.2) after Lentz, for x >= a + 1.
double upperGamma(double a, double x)
{
    double b = x + 1 - a;
    double c = std::numeric_limits<double>::max();
    double d = 1 / b;
    double fraction = d;
    double change = 0;
    for (int i = 1; std::abs(change - 1) > std::numeric_limits<double>::epsilon() && i < 10000; ++i) {
        const double numerator = -i * (i - a);
        b += 2;
        d = 1 / (numerator * d + b);
        c = b + numerator / c;
        change = c * d;
        fraction *= change;
    }
    return fraction * gammaFactor(a, x);
}

} // namespace

double chiSquareTail(double chiSquare, int degrees)
{
    if (chiSquare <= 0)
        return 1;
    const double a = degrees / 2.0;
    const double x = chiSquare / 2;
    return x < a + 1 ? 1 - lowerGamma(a, x) : upperGamma(a, x);
}

std::optional<Homogeneity> testHomogeneity(std::span<const std::int32_t> first,
                                           std::span<const std::int32_t> second)
{
    const auto firstSum = sumOf(first);
    const auto secondSum = sumOf(second);
    if (!firstSum || !secondSum)
        return {};
    const double all = *firstSum + *secondSum;
    // The smaller sample has the smaller expected counts.
    const double leastBoth = leastExpected * all / std::min(*firstSum, *secondSum);

    std::vector<Class> classes;
    for (std::size_t taxon = 0; taxon < first.size(); ++taxon)
        if (first[taxon] > 0 || second[taxon] > 0)
            classes.push_back({static_cast<double>(first[taxon]), static_cast<double>(second[taxon])});
    std::stable_sort(classes.begin(), classes.end(),
                     [](const Class& one, const Class& other) { return one.both() > other.both(); });

    Homogeneity test;
    Class pool;
    while (!classes.empty() &&
           (classes.back().both() < leastBoth || (pool.both() > 0 && pool.both() < leastBoth))) {
        pool.first += classes.back().first;
        pool.second += classes.back().second;
        ++test.pooledTaxa;
        classes.pop_back();
    }
    if (pool.both() > 0)
        classes.push_back(pool);
    if (classes.size() < 2)
        return {};
    for (const Class& one : classes) {
        const double expectedFirst = one.both() * *firstSum / all;
        const double difference = one.first - expectedFirst; // the other sample's is its negative
        test.chiSquare += difference * difference / expectedFirst;
        test.chiSquare += difference * difference / (one.both() * *secondSum / all);
    }
    test.degrees = static_cast<int>(classes.size()) - 1;
    test.p = chiSquareTail(test.chiSquare, test.degrees);
    return test;
}

std::optional<double> percentageSimilarity(std::span<const std::int32_t> first,
                                           std::span<const std::int32_t> second)
{
    const auto firstSum = sumOf(first);
    const auto secondSum = sumOf(second);
    if (!firstSum || !secondSum)
        return {};
    double common = 0;
    for (std::size_t taxon = 0; taxon < first.size(); ++taxon)
        common += std::min(first[taxon] / *firstSum, second[taxon] / *secondSum);
    return 100 * common;
}
