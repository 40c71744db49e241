#include "statistics/homogeneity.h"

#include "statistics/reference_test.h"

#include <cmath>

namespace {

using Counts = std::vector<std::int32_t>;

TEST(ChiSquareTail, HasItsClosedForms)
{
    for (const double x : {1e-6, 0.1, 0.7, 1.0, 2.9, 3.1, 10.0, 42.0, 250.0}) {
        SCOPED_TRACE(x);
        EXPECT_MATCHES(chiSquareTail(x, 1), std::erfc(std::sqrt(x / 2)));
        EXPECT_MATCHES(chiSquareTail(x, 2), std::exp(-x / 2));
        EXPECT_MATCHES(chiSquareTail(x, 4), std::exp(-x / 2) * (1 + x / 2));
        double term = 1; // of e^-y sum y^k / k!, for 40 degrees
        double sum = 1;
        for (int k = 1; k < 20; ++k)
            sum += term *= x / 2 / k;
        EXPECT_MATCHES(chiSquareTail(x, 40), std::exp(-x / 2) * sum);
    }
    // Printed tables: where five and one percent lie above.
    EXPECT_NEAR(chiSquareTail(3.841459, 1), 0.05, 1e-7);
    EXPECT_NEAR(chiSquareTail(18.307038, 10), 0.05, 1e-7);
    EXPECT_NEAR(chiSquareTail(135.806723, 100), 0.01, 1e-7);
    EXPECT_EQ(chiSquareTail(0, 5), 1);
}

TEST(HomogeneityTest, IsPearsonsOnATwoByTwoTable)
{
    // N (ad - bc)^2 over the product of the four sums.
    const auto test = testHomogeneity(Counts{30, 70}, Counts{45, 55});
    ASSERT_TRUE(test);
    EXPECT_MATCHES(test->chiSquare, 200.0 * std::pow(30 * 55 - 70 * 45, 2) / (75.0 * 125 * 100 * 100));
    EXPECT_EQ(test->degrees, 1);
    EXPECT_EQ(test->pooledTaxa, 0);
    EXPECT_MATCHES(test->p, std::erfc(std::sqrt(test->chiSquare / 2)));
}

TEST(HomogeneityTest, PoolsRareTaxaUntilFiveAreExpected)
{
    // Of equal sums: 10 of both together are expected five times in each.
    const auto rare = testHomogeneity(Counts{100, 60, 4, 3, 2, 1, 0}, Counts{90, 68, 2, 4, 4, 1, 1});
    ASSERT_TRUE(rare);
    EXPECT_EQ(rare->pooledTaxa, 5);
    EXPECT_EQ(rare->degrees, 2);
    const auto pooledByHand = testHomogeneity(Counts{100, 60, 10}, Counts{90, 68, 12});
    EXPECT_MATCHES(rare->chiSquare, pooledByHand->chiSquare);

    // The rare ones alone come to four only: the rarest of the others joins them.
    const auto joined = testHomogeneity(Counts{100, 60, 8, 2}, Counts{90, 70, 8, 2});
    ASSERT_TRUE(joined);
    EXPECT_EQ(joined->pooledTaxa, 2);
    EXPECT_EQ(joined->degrees, 2);

    // The smaller sample decides.
    const auto uneven = testHomogeneity(Counts{1000, 900, 100}, Counts{50, 45, 5});
    EXPECT_EQ(uneven->pooledTaxa, 0);
    EXPECT_EQ(testHomogeneity(Counts{1000, 901, 99}, Counts{50, 45, 5})->pooledTaxa, 2);
}

TEST(HomogeneityTest, HasNoAnswerWithoutTwoClasses)
{
    EXPECT_FALSE(testHomogeneity(Counts{500, 0}, Counts{300, 0}));
    EXPECT_FALSE(testHomogeneity(Counts{3, 1}, Counts{2, 2}));
    EXPECT_FALSE(testHomogeneity(Counts{0, 0}, Counts{20, 20}));
    EXPECT_FALSE(testHomogeneity(Counts{20, -1}, Counts{20, 20}));
    const auto huge = testHomogeneity(Counts{2'000'000'000, 2'000'000'000}, Counts{2'000'000'000, 100});
    ASSERT_TRUE(huge);
    EXPECT_EQ(huge->p, 0);
    EXPECT_EQ(testHomogeneity(Counts{40, 60}, Counts{40, 60})->p, 1);
}

TEST(PercentageSimilarity, SumsTheSmallerShares)
{
    EXPECT_EQ(percentageSimilarity(Counts{30, 10}, Counts{60, 20}), 100);
    EXPECT_EQ(percentageSimilarity(Counts{30, 0}, Counts{0, 20}), 0);
    EXPECT_MATCHES(*percentageSimilarity(Counts{50, 30, 20}, Counts{2, 5, 3}), 70.0);
    EXPECT_FALSE(percentageSimilarity(Counts{0, 0}, Counts{1, 1}));
    EXPECT_FALSE(percentageSimilarity(Counts{1, 1}, Counts{1, -1}));
}

} // namespace
