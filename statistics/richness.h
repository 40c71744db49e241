#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <span>

/// What a sample says about its taxa, those not yet seen included. All of it takes the individuals as drawn
/// at random; counts of parts of individuals (vesicles, valves) do not fit.

/// n, S, f1 and f2 are whole numbers in doubles, since a sum may pass 32 bits.
struct Richness {
    double individuals = 0;        ///< n
    double taxa = 0;               ///< S, taxa with a count
    double singletons = 0;         ///< f1, taxa seen once
    double doubletons = 0;         ///< f2, taxa seen twice
    double unseen = 0;             ///< f0, estimated taxa not seen
    double chao1 = 0;              ///< S + f0, a lower bound; Chao (1984), Scand. J. Statist. 11: 265-270
    double chao1BiasCorrected = 0; ///< S + f1 (f1 - 1) / (2 (f2 + 1))
    double goodCoverage = 0;       ///< 1 - f1 / n; Good (1953), Biometrika 40: 237-264
    double coverage =
        0; ///< share of the assemblage that the taxa seen make up; Chao & Jost (2012), Ecology 93
    std::array<double, 3> hill{}; ///< of order 0, 1, 2; Hill (1973), Ecology 54: 427-432

    /// Taxa that the next m individuals are expected to add; Shen, Chao & Lin (2003), Ecology 84: 798-804.
    double newTaxa(double m) const;
};

/// Of the counts of one sample, zeros allowed. Nothing if one is negative or all are zero.
std::optional<Richness> measureRichness(std::span<const std::int32_t> counts);

/// Taxa expected among m individuals drawn without replacement, E(S_m); Hurlbert (1971), Ecology 52: 577-586.
/// Nothing if a count is negative or m is not in 0 to the sum.
std::optional<double> rarefiedTaxa(std::span<const std::int32_t> counts, double m);
