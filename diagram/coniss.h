#pragma once

#include <cstdint>
#include <vector>

/// Stratigraphically constrained cluster analysis: from single samples on, the two neighbouring clusters
/// whose profiles lie closest merge, until one is left. The method is that of Grimm (1987), "CONISS: a
/// FORTRAN 77 program for stratigraphically constrained cluster analysis by the method of incremental sum of
/// squares", Computers & Geosciences 13: 13-35, in an unweighted variant. It differs from Grimm's in this:
/// - the profile and the place of a merged cluster are the plain means of the two, whatever their sizes;
/// - the pair whose squared distance is least merges, not the one that least increases the within-cluster sum
///   of squares, and a merge's height is that distance plus the heights of both, so heights of different
///   branches are not comparable as dispersions;
/// - the data are fractions of the % basis as they stand, not transformed.

/// Merges 1 to N - 1 in the order in which they happen; element 0 holds nothing. Places are coordinates of
/// the diagram (10 for its first row), those of a merged cluster a mean of two.
struct MergeTable {
    std::vector<float> MergeFrom;      ///< place of the upper cluster
    std::vector<float> MergeTo;        ///< place of the lower cluster
    std::vector<float> MergeSumSquare; ///< height; never falls along a branch, so the last is the highest

    int merges() const { return static_cast<int>(MergeSumSquare.size()) - 1; }
};

/// One value per taxon for each sample, in the order of the diagram; all profiles have the same length.
using Profiles = std::vector<std::vector<float>>;

/// `profiles` and `places`: samples 1 to N, element 0 unused; N is at least 2. Of pairs whose distances are
/// equal as 32-bit numbers the topmost merges, and the topmost pair of all if no distance is below 9999.
MergeTable clusterSamples(Profiles profiles, std::vector<float> places);
