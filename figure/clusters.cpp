#include "figure/clusters.h"

#include <algorithm>
#include <cstddef>

namespace {

/// A cluster that is left: its samples and the sum of their profiles.
struct Cluster {
    int first = 0;
    int last = 0;
    std::vector<double> sum;

    double size() const { return last - first + 1; }
};

double increaseOf(const Cluster& a, const Cluster& b)
{
    double squares = 0;
    const double ofA = 1 / a.size();
    const double ofB = 1 / b.size();
    for (std::size_t taxon = 0; taxon < a.sum.size(); ++taxon) {
        const double difference = a.sum[taxon] * ofA - b.sum[taxon] * ofB;
        squares += difference * difference;
    }
    return a.size() * b.size() / (a.size() + b.size()) * squares;
}

} // namespace

std::vector<ClusterMerge> clusterByGrimm(const std::vector<std::vector<double>>& profiles)
{
    std::vector<Cluster> clusters;
    for (int sample = 0; sample < static_cast<int>(profiles.size()); ++sample)
        clusters.push_back({sample, sample, profiles[sample]});
    std::vector<double> increases; // of each cluster with the next; only those beside a merge change
    for (std::size_t i = 0; i + 1 < clusters.size(); ++i)
        increases.push_back(increaseOf(clusters[i], clusters[i + 1]));

    // Ties must not hang on the last bit of a rounding; real differences are far larger.
    constexpr double equal = 1 - 1e-12;
    std::vector<ClusterMerge> merges;
    double total = 0;
    while (clusters.size() > 1) {
        std::size_t least = 0;
        for (std::size_t i = 1; i < increases.size(); ++i)
            if (increases[i] < increases[least] * equal)
                least = i;
        Cluster& upper = clusters[least];
        const Cluster& lower = clusters[least + 1];
        total += increases[least];
        merges.push_back({upper.first, upper.last, lower.first, lower.last, increases[least], total});
        for (std::size_t taxon = 0; taxon < upper.sum.size(); ++taxon)
            upper.sum[taxon] += lower.sum[taxon];
        upper.last = lower.last;
        const auto place = static_cast<std::ptrdiff_t>(least);
        clusters.erase(clusters.begin() + place + 1);
        increases.erase(increases.begin() + place);
        if (least < increases.size())
            increases[least] = increaseOf(clusters[least], clusters[least + 1]);
        if (least > 0)
            increases[least - 1] = increaseOf(clusters[least - 1], clusters[least]);
    }
    return merges;
}

std::vector<BrokenStick> brokenStick(const std::vector<ClusterMerge>& merges)
{
    const int m = static_cast<int>(merges.size());
    std::vector<BrokenStick> sticks(m > 1 ? m - 1 : 0);
    double pieces = m > 0 ? 1.0 / m : 0; // the sum of 1/i from k to m
    for (int k = m - 1; k >= 1; --k) {
        pieces += 1.0 / k;
        BrokenStick& line = sticks[k - 1];
        line.zones = k + 1;
        line.dispersion = merges[m - k].total - merges[m - k - 1].total;
        line.stick = merges.back().total / m * pieces;
        line.above = line.dispersion > line.stick;
    }
    return sticks;
}

int zonesByStick(const std::vector<BrokenStick>& sticks)
{
    const auto above = [](const BrokenStick& line) { return line.above; };
    const auto first = std::find_if(sticks.begin(), sticks.end(), above);
    const auto end = std::find_if_not(first, sticks.end(), above);
    return 1 + static_cast<int>(end - first);
}

std::vector<int> highestBoundaries(const std::vector<ClusterMerge>& merges, int zones)
{
    std::vector<int> boundaries;
    for (auto merge = merges.rbegin();
         merge != merges.rend() && static_cast<int>(boundaries.size()) < zones - 1; ++merge)
        boundaries.push_back(merge->upperLast);
    std::sort(boundaries.begin(), boundaries.end());
    return boundaries;
}
