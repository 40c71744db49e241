#include "diagram/coniss.h"

#include "core/number_text.h"
#include "diagram/dendrogram.h"
#include "diagram/plot_data.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <random>

namespace {

/// The method step by step: every distance computed anew in each pass, every gap closed by moving.
MergeTable slowly(Profiles mean, std::vector<float> position)
{
    const int samples = static_cast<int>(mean.size()) - 1;
    MergeTable table;
    table.MergeFrom.resize(samples);
    table.MergeTo.resize(samples);
    table.MergeSumSquare.resize(samples);
    std::vector<double> sumSquare(samples + 1);
    std::vector<double> distance(samples + 1);
    for (int merge = 1; merge < samples; ++merge) {
        const int pairs = samples - merge;
        for (int i = 1; i <= pairs; ++i) {
            distance[i] = 0;
            for (std::size_t taxon = 0; taxon < mean[i].size(); ++taxon) {
                const double a = mean[i][taxon];
                const double b = mean[i + 1][taxon];
                distance[i] += (a - b) * (a - b);
            }
        }
        int best = 1;
        float value = 9999.0F;
        for (int i = 1; i <= pairs; ++i)
            if (static_cast<float>(distance[i]) < value) {
                value = static_cast<float>(distance[i]);
                best = i;
            }
        const double closest = static_cast<float>(distance[best]);
        table.MergeFrom[merge] = position[best];
        table.MergeTo[merge] = position[best + 1];
        table.MergeSumSquare[merge] = static_cast<float>(closest + sumSquare[best] + sumSquare[best + 1]);
        for (std::size_t taxon = 0; taxon < mean[best].size(); ++taxon)
            mean[best][taxon] = (mean[best][taxon] + mean[best + 1][taxon]) / 2;
        position[best] = (position[best] + position[best + 1]) / 2;
        sumSquare[best] = table.MergeSumSquare[merge];
        for (int i = best + 1; i <= pairs; ++i) {
            mean[i] = mean[i + 1];
            position[i] = position[i + 1];
            sumSquare[i] = sumSquare[i + 1];
        }
    }
    return table;
}

std::vector<float> evenPlaces(int samples)
{
    std::vector<float> places(samples + 1);
    for (int sample = 1; sample <= samples; ++sample)
        places[sample] = 10.0F * static_cast<float>(sample);
    return places;
}

} // namespace

TEST(Coniss, equalsTheMethodStepByStepToTheLastBit)
{
    std::mt19937 random(20261121);
    for (int round = 0; round < 60; ++round) {
        const int samples = 2 + static_cast<int>(random() % 90);
        const int coarse = round % 3 == 0 ? 3 : 1000; // few different values: many ties
        Profiles profiles(samples + 1, std::vector<float>(135));
        for (auto& profile : profiles)
            for (float& share : profile)
                share = static_cast<float>(random() % coarse) / static_cast<float>(coarse * 40);
        if (round % 7 == 0)
            profiles[1][0] = 200; // no distance below 9999 in the end
        const MergeTable expected = slowly(profiles, evenPlaces(samples));
        const MergeTable merges = clusterSamples(profiles, evenPlaces(samples));
        ASSERT_EQ(merges.MergeFrom, expected.MergeFrom) << round;
        ASSERT_EQ(merges.MergeTo, expected.MergeTo) << round;
        ASSERT_EQ(merges.MergeSumSquare, expected.MergeSumSquare) << round;
    }
}

TEST(Coniss, mergesPlainMeansAndTheTopmostOfEqualPairs)
{
    // One taxon: 0, 0, 0.5, 1. The equal pair first; then 0.5 lies as far from 0 as from 1.
    const MergeTable merges = clusterSamples({{}, {0}, {0}, {0.5F}, {1}}, evenPlaces(4));
    EXPECT_EQ(merges.MergeSumSquare, (std::vector<float>{0, 0, 0.25F, 0.8125F}));
    EXPECT_EQ(merges.MergeFrom, (std::vector<float>{0, 10, 15, 22.5F}));
    EXPECT_EQ(merges.MergeTo, (std::vector<float>{0, 20, 30, 40}));
}

TEST(Dendrogram, rubsOutTheStemsInsideEachBracket)
{
    const MergeTable merges = clusterSamples({{}, {0}, {1}, {3}}, evenPlaces(3));
    const Scale scale = dendrogramScale(merges, {0, 9.5F, 500, 21});
    EXPECT_EQ(scale.top, 9.5F);
    EXPECT_FLOAT_EQ(scale.width, 7.25F * 1.1F);
    const Drawing drawing = planDendrogram(merges, scale, 200);
    // Paper, root, then from the last merge a box and three lines each, then ticks at 1 to 8.
    ASSERT_EQ(drawing.marks.size(), 2 + 2 * 4 + 2 * 8);
    EXPECT_TRUE(drawing.marks[1].y1 == 22.5F && drawing.marks[1].x1 == 0);
    const Mark& box = drawing.marks[2];
    EXPECT_TRUE(box.kind == Mark::Kind::box && box.x2 == 7.25F && box.y1 == 15 && box.y2 == 30);
    const Mark& lower = drawing.marks[6];
    EXPECT_TRUE(lower.kind == Mark::Kind::box && lower.x2 == 1 && lower.y1 == 10 && lower.y2 == 20);
    EXPECT_EQ(planDendrogram(merges, scale, 5).marks.size(), 12) << "ticks closer than a pixel";
}

TEST(Dendrogram, ofEqualSamplesIsOneUnitWide)
{
    const MergeTable merges = clusterSamples({{}, {1}, {1}, {1}}, evenPlaces(3));
    const Scale scale = dendrogramScale(merges, {0, 9.5F, 500, 21});
    EXPECT_EQ(scale.width, 1);
    EXPECT_EQ(planDendrogram(merges, scale, 200).marks.size(), 2 + 2 * 4 + 2);
}
