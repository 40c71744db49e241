#pragma once

#include <optional>

/// How sure a share is: its 95 % limits, and how many individuals would make it surer. Shares are fractions,
/// not percent. x: individuals of the taxon; n: individuals of the sum, whole numbers of any size.

constexpr double normal95 = 1.959963984540054; ///< 97.5 % of a normal distribution lie below it

struct Limits {
    double lower = 0;
    double upper = 0;
};

/// Of a taxon that the sum holds: the score interval of Wilson (1927), J. Am. Stat. Assoc. 22: 209-212, given
/// for pollen sums by Mosimann (1965) and Maher (1972), Rev. Palaeobot. Palynol. 13: 85-93. Nothing unless
/// 0 <= x <= n and n > 0.
std::optional<Limits> limitsInside(double x, double n);

/// Of a taxon outside the sum, as the ratio x / n, which may pass 1 (Mosimann 1965, in Kummel & Raup,
/// Handbook of Paleontological Techniques: 636-673). Nothing for n below 4, where the ratio has no upper
/// limit.
std::optional<Limits> limitsOutside(double x, double n);

/// The sum at which the limits of a share `p` will lie 2 x `halfWidth` apart if the share stays as it is:
/// the intervals above solved for n. Not rounded; 0 if any sum will do. Nothing unless halfWidth > 0 and p is
/// possible.
std::optional<double> sumNeededInside(double p, double halfWidth);
std::optional<double> sumNeededOutside(double p, double halfWidth);
