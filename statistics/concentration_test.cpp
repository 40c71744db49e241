#include "statistics/concentration.h"

#include "statistics/reference_test.h"

#include <cmath>

namespace {

Preparation preparationOf(const ReferenceRow& row)
{
    return {number(row, "tablets"), number(row, "tablet_mean"), number(row, "tablet_sd"),
            number(row, "quantity"), number(row, "quantity_sd")};
}

TEST(Concentration, MatchesTheReference)
{
    for (const ReferenceRow& row : referenceTable("concentration.csv")) {
        const double x = number(row, "x");
        const double y = number(row, "y");
        SCOPED_TRACE(row.at("x") + " to " + row.at("y"));
        const Preparation made = preparationOf(row);
        const auto found = concentrationOf(x, y, made);
        ASSERT_TRUE(found && found->limits);
        EXPECT_MATCHES(found->value, number(row, "concentration"));
        EXPECT_MATCHES(found->standardError, number(row, "standard_error"));
        EXPECT_MATCHES(found->relativeError, number(row, "relative_error"));
        EXPECT_MATCHES(found->limits->lower, number(row, "lower"));
        EXPECT_MATCHES(found->limits->upper, number(row, "upper"));
        // With tablets and quantity known exactly the limits are those of the count alone.
        Preparation exact = made;
        exact.tabletSd = exact.quantitySd = 0;
        const auto counted = concentrationOf(x, y, exact);
        EXPECT_MATCHES(counted->limits->lower, number(row, "count_lower"));
        EXPECT_MATCHES(counted->limits->upper, number(row, "count_upper"));
        // The plain logarithmic limits that others give follow from value and relative error.
        EXPECT_MATCHES(found->value * std::exp(-normal95 * found->relativeError), number(row, "log_lower"));
        EXPECT_MATCHES(found->value * std::exp(normal95 * found->relativeError), number(row, "log_upper"));
    }
}

constexpr Preparation oneTablet{1, 18584, 371, 1, 0};

TEST(Concentration, TellsWhatItCannotSay)
{
    EXPECT_FALSE(concentrationOf(300, 0, oneTablet));
    EXPECT_FALSE(concentrationOf(-1, 50, oneTablet));
    EXPECT_FALSE(concentrationOf(300, 50, {}));
    EXPECT_FALSE(concentrationOf(300, 50, {1, 18584, -1, 1, 0}));
    EXPECT_FALSE(concentrationOf(300, 3, oneTablet)->limits) << "too few markers";
    EXPECT_TRUE(concentrationOf(300, 4, oneTablet)->limits);
    const auto unseen = concentrationOf(0, 50, oneTablet);
    ASSERT_TRUE(unseen);
    EXPECT_EQ(unseen->value, 0);
    EXPECT_FALSE(unseen->limits);
    const auto many = concentrationOf(2'000'000, 2'000'000, oneTablet);
    EXPECT_MATCHES(many->value, 18584.0);
    EXPECT_GT(many->limits->upper, many->value);
}

TEST(Concentration, InfluxIsConcentrationTimesRate)
{
    const auto influx = influxOf(300, 50, oneTablet, {0.02, 0});
    const auto still = concentrationOf(300, 50, oneTablet);
    EXPECT_MATCHES(influx->value, still->value * 0.02);
    EXPECT_MATCHES(influx->limits->upper, still->limits->upper * 0.02);
    const auto unsure = influxOf(300, 50, oneTablet, {0.02, 0.004});
    EXPECT_MATCHES(unsure->relativeError * unsure->relativeError,
                   still->relativeError * still->relativeError + 0.04);
    EXPECT_GT(unsure->limits->upper, influx->limits->upper);
    EXPECT_FALSE(influxOf(300, 50, oneTablet, {0, 0}));
}

TEST(Concentration, MarkersNeededReachTheError)
{
    EXPECT_EQ(std::ceil(*markersNeeded(300, 50, oneTablet, 0.1)), 122);
    const double y = *markersNeeded(300, 50, oneTablet, 0.1);
    EXPECT_MATCHES(concentrationOf(6 * y, y, oneTablet)->relativeError, 0.1);
    EXPECT_FALSE(markersNeeded(300, 50, {1, 18584, 371, 1, 0.1}, 0.1)) << "the volume alone is as unsure";
    EXPECT_FALSE(markersNeeded(0, 50, oneTablet, 0.1));
    EXPECT_FALSE(markersNeeded(300, 0, oneTablet, 0.1));
    EXPECT_FALSE(markersNeeded(300, 50, oneTablet, 0));
}

} // namespace
