#include "tables/export_tables.h"

#include "tables/sheets_test.h"

#include <cstdio>
#include <random>

namespace {

void setTaxon(SheetTables& sheet, int slot, const std::string& name, std::initializer_list<int> counts)
{
    sheet.TaxonRecord[slot].Name = name;
    int sample = 0;
    for (const int count : counts)
        sheet.Count(++sample, slot) = count;
    sheet.SampleCount = std::max(sheet.SampleCount, sample);
}

std::string line(const std::string& table, int number)
{
    std::size_t begin = 0;
    for (int i = 1; i < number; ++i)
        begin = table.find("\r\n", begin) + 2;
    return table.substr(begin, table.find("\r\n", begin) - begin);
}

std::string percent(int count, std::int64_t total)
{
    std::string text;
    appendPercent(text, count, total);
    return text;
}

} // namespace

TEST(ExportTables, theDallicanSheetGivesTheReferenceBytes)
{
    const SheetTables sheet = exampleSheet("dallican_pollen");
    EXPECT_EQ(countsTable(sheet), reference("dallican_pollen_counts.csv"));
    EXPECT_EQ(tidyTable(sheet, "dallican_pollen"), reference("dallican_pollen_tidy.csv"));
    EXPECT_EQ(taxaTable(sheet), reference("dallican_pollen_taxa.csv"));
}

TEST(ExportTables, everyColumnHasANameOfItsOwn)
{
    SheetTables sheet;
    setTaxon(sheet, 1, "Pinus", {1});
    setTaxon(sheet, 2, "Pinus", {2});
    setTaxon(sheet, 3, "Pinus (2)", {3});
    setTaxon(sheet, 4, "Pinus", {0}); // has a number though it is in one table only
    setTaxon(sheet, 5, "depth", {5});
    setTaxon(sheet, 17, "---", {6});
    std::swap(sheet.KeyIndexOfRow[17], sheet.KeyIndexOfRow[18]); // the row moves, the key stays
    EXPECT_EQ(line(countsTable(sheet), 1), "sample,depth,Pinus,Pinus (3),Pinus (2),depth (2),Unnamed 17");
    EXPECT_EQ(line(taxaTable(sheet), 5), "Pinus (4),,4,0,0,0,0");
    EXPECT_EQ(line(taxaTable(sheet), 7), "Unnamed 17,,17,0,0,6,1");
}

TEST(ExportTables, textsAreQuotedWhereTheyMustBeAndAMarkComesOnlyWithLettersBeyondAscii)
{
    SheetTables sheet;
    sheet.SheetHeader[2][2] = "Trees, shrubs";
    sheet.SampleField(1, 2) = "12.50";
    setTaxon(sheet, 1, "Alnus 'green', type \"A\"", {3});
    sheet.TaxonRecord[1].Subtotal1 = "1";
    EXPECT_EQ(countsTable(sheet), "sample,depth,\"Alnus 'green', type \"\"A\"\"\"\r\n12.50,12.50,3\r\n");
    EXPECT_EQ(
        line(tidyTable(sheet, "Lake, \xC3\x85"), 2),
        "\"Lake, \xC3\x85\",12.50,12.50,\"Alnus 'green', type \"\"A\"\"\",\"Trees, shrubs\",,NISP,3,100");
    EXPECT_EQ(tidyTable(sheet, "\xC3\x85").substr(0, 11), "\xEF\xBB\xBFlocation");
    EXPECT_EQ(tidyTable(sheet, "A").substr(0, 8), "location");
    sheet.SampleField(1, 2) = "12 cm"; // no depth
    sheet.TaxonRecord[1].Name = "\xC6pyornis";
    EXPECT_EQ(countsTable(sheet), "\xEF\xBB\xBFsample,depth,\xC3\x86pyornis\r\n12 cm,,3\r\n");
}

TEST(ExportTables, anySheetHasItsTables)
{
    SheetTables sheet;
    EXPECT_EQ(countsTable(sheet), "sample,depth\r\n-9999,-9999\r\n");
    EXPECT_EQ(tidyTable(sheet, "x"), line(tidyTable(sheet, "x"), 1) + "\r\n");
    sheet.SampleCount = 0;
    EXPECT_EQ(countsTable(sheet), "sample,depth\r\n");
    // More individuals than a data sheet can hold, none at all, fewer than none, equal names.
    setTaxon(sheet, 1, "Pinus", {2000000000, 0, -2, 1});
    setTaxon(sheet, 2, "Betula", {2000000000, 0, 1, 2});
    for (int sample = 1; sample <= 4; ++sample)
        sheet.SampleField(sample, 2) = "10";
    EXPECT_EQ(line(taxaTable(sheet), 2), "Pinus,,1,0,0,1999999999,3");
    const std::string tidy = tidyTable(sheet, "x");
    EXPECT_EQ(line(tidy, 2), "x,10,10,Pinus,,,NISP,2000000000,50");
    EXPECT_EQ(line(tidy, 4), "x,10,10,Pinus,,,NISP,0,");
    EXPECT_EQ(line(tidy, 6), "x,10,10,Pinus,,,NISP,-2,");
    EXPECT_EQ(line(tidy, 9), "x,10,10,Betula,,,NISP,2,66.66666667");
}

TEST(ExportTables, percentagesHaveTenDigitsRoundedFromTheExactShare)
{
    EXPECT_EQ(percent(0, 5), "0");
    EXPECT_EQ(percent(-1, 3), "-33.33333333");
    EXPECT_EQ(percent(3, 16384), "0.01831054688"); // halfway, to the even digit
    EXPECT_EQ(percent(1, 2147483647), "0.00000004656612875");
    EXPECT_EQ(percent(2147483647, std::int64_t{1} << 39), "0.3906249998");
    std::mt19937 chance(7);
    for (int i = 0; i < 20000; ++i) {
        const int total = static_cast<int>(1 + chance() % 32767);
        const int count = static_cast<int>(chance() % (static_cast<unsigned>(total) + 1));
        const double share = 100.0 * count / total;
        if (share != 0 && share < 0.01)
            continue; // the C library turns to exponents
        char expected[40];
        std::snprintf(expected, sizeof expected, "%.10g", share);
        ASSERT_EQ(percent(count, total), expected) << count << " of " << total;
    }
}
