#pragma once

#include <cstdint>
#include <optional>
#include <span>

/// Two samples, or two counts of one, put against each other.

/// Pearson's chi-square test that both were drawn from the same assemblage.
struct Homogeneity {
    double chiSquare = 0;
    int degrees = 0;    ///< classes - 1
    double p = 1;       ///< chance of this chi-square or a larger one if they were
    int pooledTaxa = 0; ///< taxa that went together into one class
};

/// `first` and `second`: counts of the same taxa in the same order. Taxa with an expected count below 5 in
/// either sample are pooled into one class, and the rarest of the others join it until it has 5 too (Cochran
/// 1954, Biometrics 10: 417-451). Nothing if a count is negative, a sample is empty or fewer than two classes
/// are left.
std::optional<Homogeneity> testHomogeneity(std::span<const std::int32_t> first,
                                           std::span<const std::int32_t> second);

/// The sum of the smaller of the two shares of each taxon, percent: 100 for equal shares, 0 for no taxon in
/// common (Renkonen 1938, Ann. Zool. Soc. Vanamo 6: 1-231). Nothing if a count is negative or a sample is
/// empty.
std::optional<double> percentageSimilarity(std::span<const std::int32_t> first,
                                           std::span<const std::int32_t> second);

/// Chance that a chi-square of that many degrees of freedom is at least `chiSquare`: the upper regularised
/// incomplete gamma function Q(degrees / 2, chiSquare / 2).
double chiSquareTail(double chiSquare, int degrees);
