#pragma once

#include <vector>

/// Zones by stratigraphically constrained clusters: Grimm, E. C. (1987), CONISS, Computers & Geosciences 13:
/// 13-35, and the broken stick of Bennett, K. D. (1996), New Phytologist 132: 155-170.

/// The merge of two neighbouring clusters. Samples are indexes from 0, from the top.
struct ClusterMerge {
    int upperFirst = 0;
    int upperLast = 0;
    int lowerFirst = 0;
    int lowerLast = 0;
    double increase = 0; ///< of the total within-cluster sum of squares
    double total = 0;    ///< that sum after the merge: the height of the merge; never falls
};

/// Merges samples, from single ones on, until one cluster is left: each time the two neighbours whose merge
/// adds least to the total within-cluster sum of squares; of equal ones the topmost. `profiles`: one for each
/// sample, all of the same length. As many merges as samples less one, in the order in which they happen.
std::vector<ClusterMerge> clusterByGrimm(const std::vector<std::vector<double>>& profiles);

/// One line of the broken stick.
struct BrokenStick {
    int zones = 0;
    double dispersion = 0; ///< what the last of these zones takes off the sum of squares
    double stick = 0;      ///< what chance alone would
    bool above = false;
};

/// Lines for 2, 3, ... zones; none for fewer than two merges.
std::vector<BrokenStick> brokenStick(const std::vector<ClusterMerge>& merges);
/// One, and one more for each line of the first unbroken run of lines above their sticks. Where increases
/// fall, that run may begin behind the first line.
int zonesByStick(const std::vector<BrokenStick>& sticks);

/// The highest zones - 1 boundaries, from top to bottom: each the index of the sample above it. A boundary is
/// as high as the merge that joined its two sides.
std::vector<int> highestBoundaries(const std::vector<ClusterMerge>& merges, int zones);
