#include "diagram/coniss.h"

#include <numeric>

static double squaredDistance(const std::vector<float>& a, const std::vector<float>& b)
{
    double sum = 0;
    for (std::size_t taxon = 0; taxon < a.size(); ++taxon) {
        const double difference = static_cast<double>(a[taxon]) - static_cast<double>(b[taxon]);
        sum += difference * difference;
    }
    return sum;
}

MergeTable clusterSamples(Profiles profiles, std::vector<float> places)
{
    const std::size_t samples = profiles.size() - 1;
    MergeTable table;
    table.MergeFrom.resize(samples);
    table.MergeTo.resize(samples);
    table.MergeSumSquare.resize(samples);

    // Clusters are numbered by their topmost sample. `cluster` lists those that are left, from top to bottom;
    // `distance` is that of each to the next one. Only those beside a merge change.
    std::vector<std::size_t> cluster(samples);
    std::iota(cluster.begin(), cluster.end(), std::size_t{1});
    std::vector<double> height(samples + 1);
    std::vector<float> distance(samples - 1);
    const auto measure = [&](std::size_t i) {
        distance[i] = static_cast<float>(squaredDistance(profiles[cluster[i]], profiles[cluster[i + 1]]));
    };
    for (std::size_t i = 0; i < distance.size(); ++i)
        measure(i);

    for (std::size_t merge = 1; merge < samples; ++merge) {
        std::size_t closest = 0;
        float best = 9999.0F;
        for (std::size_t i = 0; i < distance.size(); ++i)
            if (distance[i] < best) {
                best = distance[i];
                closest = i;
            }
        const std::size_t upper = cluster[closest];
        const std::size_t lower = cluster[closest + 1];
        table.MergeFrom[merge] = places[upper];
        table.MergeTo[merge] = places[lower];
        table.MergeSumSquare[merge] =
            static_cast<float>(static_cast<double>(distance[closest]) + height[upper] + height[lower]);

        for (std::size_t taxon = 0; taxon < profiles[upper].size(); ++taxon)
            profiles[upper][taxon] = (profiles[upper][taxon] + profiles[lower][taxon]) / 2;
        places[upper] = (places[upper] + places[lower]) / 2;
        height[upper] = table.MergeSumSquare[merge];

        cluster.erase(cluster.begin() + static_cast<std::ptrdiff_t>(closest) + 1);
        distance.erase(distance.begin() + static_cast<std::ptrdiff_t>(closest));
        if (closest < distance.size())
            measure(closest);
        if (closest > 0)
            measure(closest - 1);
    }
    return table;
}
