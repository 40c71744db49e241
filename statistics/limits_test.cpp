#include "statistics/limits.h"

#include "statistics/reference_test.h"

#include <cmath>

namespace {

TEST(PercentLimits, MatchTheReference)
{
    for (const ReferenceRow& row : referenceTable("percent_limits.csv")) {
        const double x = number(row, "x");
        const double n = number(row, "n");
        SCOPED_TRACE(row.at("kind") + " " + row.at("x") + " of " + row.at("n"));
        const auto limits = row.at("kind") == "inside" ? limitsInside(x, n) : limitsOutside(x, n);
        ASSERT_TRUE(limits);
        EXPECT_MATCHES(100 * limits->lower, number(row, "lower"));
        EXPECT_MATCHES(100 * limits->upper, number(row, "upper"));
    }
}

TEST(PercentLimits, SumNeededMatchesTheReference)
{
    for (const ReferenceRow& row : referenceTable("counts_needed.csv")) {
        const auto needed = sumNeededInside(number(row, "p"), number(row, "h"));
        ASSERT_TRUE(needed);
        EXPECT_MATCHES(*needed, number(row, "n_needed"));
        EXPECT_EQ(std::ceil(*needed), number(row, "whole"));
    }
}

TEST(PercentLimits, SumNeededGivesLimitsOfThatWidth)
{
    for (const double h : {0.001, 0.01, 0.05, 0.2}) {
        for (const double p : {0.0, 0.002, 0.05, 0.5, 0.97}) {
            const double n = *sumNeededInside(p, h);
            const Limits limits = *limitsInside(p * n, n);
            EXPECT_MATCHES(limits.upper - limits.lower, 2 * h);
        }
        for (const double u : {0.0, 0.05, 1.0, 7.5}) {
            const double n = *sumNeededOutside(u, h);
            const Limits limits = *limitsOutside(u * n, n);
            EXPECT_MATCHES(limits.upper - limits.lower, 2 * h);
        }
    }
    EXPECT_EQ(sumNeededInside(0, 0.6), 0) << "no share has limits as wide as that";
}

TEST(PercentLimits, WhatHasNoAnswerGivesNone)
{
    EXPECT_FALSE(limitsInside(0, 0));
    EXPECT_FALSE(limitsInside(-1, 10));
    EXPECT_FALSE(limitsInside(11, 10));
    EXPECT_FALSE(limitsInside(1, -10));
    EXPECT_FALSE(limitsOutside(1, 3)) << "three individuals give a ratio no upper limit";
    EXPECT_TRUE(limitsOutside(1, 4));
    EXPECT_FALSE(limitsOutside(-1, 100));
    EXPECT_FALSE(sumNeededInside(0.5, 0));
    EXPECT_FALSE(sumNeededInside(1.2, 0.01));
    EXPECT_FALSE(sumNeededOutside(-0.1, 0.01));
}

TEST(PercentLimits, HoldAtTheirEndsAndAtMillions)
{
    EXPECT_EQ(limitsInside(0, 2'000'000)->lower, 0);
    EXPECT_EQ(limitsInside(2'000'000, 2'000'000)->upper, 1);
    const Limits one = *limitsInside(1, 1);
    EXPECT_MATCHES(one.lower, 1 / (1 + normal95 * normal95));
    const Limits above = *limitsOutside(900, 300);
    EXPECT_GT(above.lower, 1);
    EXPECT_LT(above.lower, 3);
    EXPECT_GT(above.upper, 3);
    const Limits rare = *limitsInside(1, 2'000'000); // n gone to the limit: 1 + z2/2 -+ z sqrt(1 + z2/4)
    EXPECT_NEAR(2e6 * rare.lower, 0.176525, 1e-5);
    EXPECT_NEAR(2e6 * rare.upper, 5.664933, 2e-5);
}

} // namespace
