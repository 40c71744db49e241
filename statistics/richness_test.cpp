#include "statistics/richness.h"

#include "files/data_sheet_reader.h"
#include "statistics/reference_test.h"

#include <cmath>
#include <iterator>

namespace {

using Counts = std::vector<std::int32_t>;

void expectMatch(const Richness& found, const ReferenceRow& row)
{
    EXPECT_EQ(found.individuals, number(row, "n"));
    EXPECT_EQ(found.taxa, number(row, "taxa"));
    EXPECT_EQ(found.singletons, number(row, "f1"));
    EXPECT_EQ(found.doubletons, number(row, "f2"));
    EXPECT_MATCHES(found.chao1, number(row, "chao1"));
    EXPECT_MATCHES(found.chao1BiasCorrected, number(row, "chao1_bias_corrected"));
    EXPECT_MATCHES(found.goodCoverage, number(row, "good_coverage"));
    EXPECT_MATCHES(found.coverage, number(row, "coverage"));
    for (int order = 0; order < 3; ++order)
        EXPECT_MATCHES(found.hill[order], number(row, "hill" + decimalText(order)));
}

/// Columns rare50 and so on; an empty one stands for a number of individuals that the sample has not.
void expectRarefied(const Counts& counts, const ReferenceRow& row, const std::vector<int>& sizes)
{
    for (const int m : sizes) {
        const auto expected = rarefiedTaxa(counts, m);
        const std::string column = "rare" + decimalText(m);
        ASSERT_EQ(expected.has_value(), !row.at(column).empty());
        if (expected) {
            EXPECT_MATCHES(*expected, number(row, column));
        }
    }
}

TEST(Richness, SmallSamplesMatchTheReference)
{
    for (const ReferenceRow& row : referenceTable("richness_small.csv")) {
        SCOPED_TRACE(row.at("counts"));
        const Counts counts = countsIn(row.at("counts"));
        expectMatch(*measureRichness(counts), row);
        expectRarefied(counts, row, {50, 100});
    }
    for (const ReferenceRow& row : referenceTable("rarefaction_small.csv"))
        EXPECT_MATCHES(*rarefiedTaxa(countsIn(row.at("counts")), number(row, "m")),
                       number(row, "expected_taxa"));
}

TEST(Richness, SamplesOfASheetMatchTheReference)
{
    std::ifstream file(std::string(EXAMPLES) + "/dallican_pollen.csv", std::ios::binary);
    const std::string text{std::istreambuf_iterator<char>(file), {}};
    SheetTables tables;
    ASSERT_TRUE(readDataSheet(text, tables));

    for (const ReferenceRow& row : referenceTable("diversity.csv")) {
        SCOPED_TRACE(row.at("name"));
        const int sample = wholeNumber(row.at("sample"));
        ASSERT_EQ(tables.SampleField(sample, 2), row.at("name"));
        Counts counts;
        for (int slot = 1; slot <= taxonSlots; ++slot)
            counts.push_back(tables.Count(sample, slot));
        const Richness found = *measureRichness(counts);
        expectMatch(found, row);
        expectRarefied(counts, row, {50, 100, 200, 300});
        EXPECT_MATCHES(found.newTaxa(50), number(row, "new_in_next_50"));
        EXPECT_MATCHES(found.newTaxa(100), number(row, "new_in_next_100"));
    }
}

TEST(Richness, EdgesHaveTheirOwnValues)
{
    EXPECT_FALSE(measureRichness(Counts{}));
    EXPECT_FALSE(measureRichness(Counts{0, 0}));
    EXPECT_FALSE(measureRichness(Counts{5, -1}));
    EXPECT_FALSE(rarefiedTaxa(Counts{5, -1}, 2));
    EXPECT_FALSE(rarefiedTaxa(Counts{5, 1}, 7));
    EXPECT_FALSE(rarefiedTaxa(Counts{5, 1}, -1));
    EXPECT_EQ(rarefiedTaxa(Counts{5, 1}, 0), 0);
    EXPECT_EQ(rarefiedTaxa(Counts{5, 1}, 6), 2);

    const Richness one = *measureRichness(Counts{0, 1});
    EXPECT_EQ(one.coverage, 1) << "one singleton and no doubleton leave nothing to estimate from";
    EXPECT_EQ(one.newTaxa(100), 0);
    const Richness none = *measureRichness(Counts{9, 4});
    EXPECT_EQ(none.chao1, 2);
    EXPECT_EQ(none.coverage, 1);
    const Richness all = *measureRichness(Counts(10, 1));
    EXPECT_MATCHES(all.unseen, 0.9 * 45);
    EXPECT_NEAR(all.newTaxa(1), 1 - all.coverage, 0.01)
        << "the next one is new as often as it is not covered";
    EXPECT_NEAR(all.newTaxa(1e9), all.unseen, 1e-6);
}

/// The chance that a taxon of k among n stays out of a draw of m, factor by factor in long doubles.
double rarefiedByProduct(const Counts& counts, long long m)
{
    long long n = 0;
    for (const std::int32_t count : counts)
        n += count;
    long double expected = 0;
    for (const long long k : counts) {
        if (k + m > n) {
            expected += 1;
            continue;
        }
        long double logUnseen = 0;
        for (long long i = 0; i < std::min(k, m); ++i)
            logUnseen +=
                std::log1p(-static_cast<long double>(std::max(k, m)) / static_cast<long double>(n - i));
        expected -= std::expm1(logUnseen);
    }
    return static_cast<double>(expected);
}

TEST(Rarefaction, KeepsItsDigitsWithAMillionIndividuals)
{
    const Counts even{1, 2, 3, 50, 1000, 998'944}; // 1,000,000 together
    for (const int m : {1, 2, 50, 300, 9'999, 500'000, 999'900, 999'999}) {
        SCOPED_TRACE(m);
        EXPECT_MATCHES(*rarefiedTaxa(even, m), rarefiedByProduct(even, m));
    }
    // A single individual is drawn with the chance m / n exactly; the other taxon is always there.
    const Counts rare{1, 1'000'000};
    for (const double m : {17.0, 300.0, 250'000.0})
        EXPECT_MATCHES(*rarefiedTaxa(rare, m) - 1, m / 1'000'001);
    EXPECT_NEAR(*rarefiedTaxa(Counts{2'000'000'000, 2'000'000'000, 1}, 2e9), 2.5, 1e-6);
}

} // namespace
