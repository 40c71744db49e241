#include "figure/clusters.h"
#include "figure/example_sheet_test.h"
#include "figure/plan_figure.h"

#include <cmath>
#include <random>

namespace {

using Points = std::vector<std::vector<double>>;

std::vector<double> increasesOf(const Points& points)
{
    std::vector<double> increases;
    for (const ClusterMerge& merge : clusterByGrimm(points))
        increases.push_back(merge.increase);
    return increases;
}

std::vector<double> totalsOf(const Points& points)
{
    std::vector<double> totals;
    for (const ClusterMerge& merge : clusterByGrimm(points))
        totals.push_back(merge.total);
    return totals;
}

void expectNear(const std::vector<double>& found, const std::vector<double>& expected, double tolerance)
{
    ASSERT_EQ(found.size(), expected.size());
    for (std::size_t i = 0; i < found.size(); ++i)
        EXPECT_NEAR(found[i], expected[i], tolerance) << "merge " << i + 1;
}

TEST(Clusters, workedExamples)
{
    const Points percents = {{60, 30, 10}, {56, 34, 10}, {50, 40, 10},
                             {20, 40, 40}, {22, 34, 44}, {10, 20, 70}};
    expectNear(totalsOf(percents), {16, 44, 388.0 / 3, 2776.0 / 3, 17012.0 / 3}, 1e-9);
    EXPECT_EQ(zonesByStick(brokenStick(clusterByGrimm(percents))), 2);

    const double root = std::sqrt(3.0) / 2;
    const Points points = {{0.5, root}, {-0.5, root}, {0, -1}, {2, 0}, {2, 2}};
    std::vector<double> twice = increasesOf(points);
    for (double& increase : twice)
        increase *= 2;
    expectNear(twice, {1, 4, 4.642734, 10.971626}, 1e-5);
}

TEST(Clusters, anIncreaseMayFallButAHeightNever)
{
    const Points points = {{85, 15, 0}, {60, 10, 30}, {35, 50, 15}, {20, 80, 0}, {60, 0, 40}};
    expectNear(increasesOf(points), {675, 775, 4225, 2555}, 1e-9);
    const auto merges = clusterByGrimm(points);
    EXPECT_EQ(zonesByStick(brokenStick(merges)), 2);
    EXPECT_EQ(highestBoundaries(merges, 2), std::vector<int>{1});
}

TEST(Clusters, ofEqualPairsTheTopmostMerges)
{
    // Fractions of equal pairs differ in their last bit.
    const Points points = {{0.1}, {0.4}, {0.7}, {1.0}, {1.3}};
    const auto merges = clusterByGrimm(points);
    EXPECT_EQ(merges[0].upperFirst, 0);
    EXPECT_EQ(merges[1].upperFirst, 2);
    const auto same = clusterByGrimm(Points(4, {0.25, 0.75}));
    EXPECT_EQ(same[2].lowerFirst, 3);
    EXPECT_EQ(zonesByStick(brokenStick(same)), 1) << "nothing differs";
    EXPECT_TRUE(clusterByGrimm({{1}}).empty());
    EXPECT_EQ(zonesByStick(brokenStick(clusterByGrimm({{1}, {2}}))), 1);
}

/// The recurrence on squared distances, with the distances of all pairs.
std::vector<double> slowTotals(const Points& points)
{
    std::vector<double> size(points.size(), 1);
    std::vector<std::vector<double>> d(points.size(), std::vector<double>(points.size()));
    for (std::size_t a = 0; a < points.size(); ++a)
        for (std::size_t b = 0; b < points.size(); ++b)
            for (std::size_t t = 0; t < points[a].size(); ++t)
                d[a][b] += std::pow(points[a][t] - points[b][t], 2);
    std::vector<double> totals;
    double total = 0;
    while (size.size() > 1) {
        std::size_t p = 0;
        for (std::size_t i = 1; i + 1 < size.size(); ++i)
            if (d[i][i + 1] < d[p][p + 1])
                p = i;
        const std::size_t q = p + 1;
        totals.push_back(total += d[p][q] / 2);
        for (std::size_t j = 0; j < size.size(); ++j)
            if (j != p && j != q)
                d[j][p] = d[p][j] =
                    ((size[j] + size[p]) * d[j][p] + (size[j] + size[q]) * d[j][q] - size[j] * d[p][q]) /
                    (size[j] + size[p] + size[q]);
        size[p] += size[q];
        size.erase(size.begin() + static_cast<std::ptrdiff_t>(q));
        d.erase(d.begin() + static_cast<std::ptrdiff_t>(q));
        for (auto& row : d)
            row.erase(row.begin() + static_cast<std::ptrdiff_t>(q));
    }
    return totals;
}

TEST(Clusters, agreeWithTheRecurrence)
{
    std::mt19937 chance(7);
    std::uniform_real_distribution<double> share(0, 1);
    for (int round = 0; round < 20; ++round) {
        Points points(static_cast<std::size_t>(round + 2), std::vector<double>(9));
        for (auto& point : points)
            for (double& value : point)
                value = share(chance);
        expectNear(totalsOf(points), slowTotals(points), 1e-9);
    }
}

TEST(Clusters, ofAPublishedCoreAreThoseOfR)
{
    const FigureData data = exampleData("dallican_pollen");
    const FigureClusters clusters =
        figureClusters(data, figureShares(data, FigureBasis::all), Transform::sqrt, ClusterMethod::grimm);
    const auto merges = tableOf(REFERENCE "/coniss_merges.csv");
    ASSERT_EQ(clusters.merges.size(), merges.size() - 1);
    const double tolerance = 1e-6 * clusters.merges.back().total;
    for (std::size_t i = 0; i < clusters.merges.size(); ++i) {
        const ClusterMerge& merge = clusters.merges[i];
        const auto& line = merges[i + 1];
        EXPECT_EQ(merge.upperFirst + 1, std::stoi(line[5]));
        EXPECT_EQ(merge.upperLast + 1, std::stoi(line[6]));
        EXPECT_EQ(merge.lowerFirst + 1, std::stoi(line[7]));
        EXPECT_EQ(merge.lowerLast + 1, std::stoi(line[8]));
        EXPECT_NEAR(merge.increase, std::stod(line[9]), tolerance);
        EXPECT_NEAR(merge.total, std::stod(line[10]), tolerance);
    }
    const auto sticks = tableOf(REFERENCE "/coniss_bstick.csv");
    ASSERT_EQ(clusters.sticks.size(), sticks.size() - 1);
    for (std::size_t i = 0; i < clusters.sticks.size(); ++i) {
        EXPECT_EQ(clusters.sticks[i].zones, std::stoi(sticks[i + 1][4]));
        EXPECT_NEAR(clusters.sticks[i].dispersion, std::stod(sticks[i + 1][5]), tolerance);
        EXPECT_NEAR(clusters.sticks[i].stick, std::stod(sticks[i + 1][6]), tolerance);
        EXPECT_EQ(clusters.sticks[i].above, sticks[i + 1][7] == "1");
    }
    // The table has the height of each boundary; ours are the highest ones.
    std::vector<double> heights;
    for (const auto& line : tableOf(REFERENCE "/coniss_boundaries.csv"))
        if (line[0] != "sheet")
            heights.push_back(std::stod(line[7]));
    EXPECT_EQ(zonesByStick(clusters.sticks), 3);
    for (const int boundary : highestBoundaries(clusters.merges, 4))
        EXPECT_GE(heights[boundary], 2.336885 - tolerance);
    EXPECT_EQ(highestBoundaries(clusters.merges, 4), (std::vector<int>{20, 37, 44}));
}

} // namespace
