// Writes sheets with their tables for other readers; read_back.py compares what pandas makes of them.

#include "files/sheet_text.h"
#include "tables/export_tables.h"
#include "tables/sheets_test.h"

#include <filesystem>

namespace {

void write(const std::string& name, SheetTables sheet)
{
    const std::filesystem::path folder = WRITTEN_TABLES;
    std::filesystem::create_directories(folder);
    fillEmptyCells(sheet, {});
    const auto file = [&](const std::string& ending, const std::string& text) {
        const std::filesystem::path path = folder / (name + ending);
        std::ofstream(path, std::ios::binary) << text;
        EXPECT_EQ(bytesOf(path.string()), text);
    };
    file(".csv", dataSheetText(sheet, *sampleTotals(sheet)));
    file("_counts.csv", countsTable(sheet));
    file("_tidy.csv", tidyTable(sheet, name));
    file("_taxa.csv", taxaTable(sheet));
}

} // namespace

TEST(WrittenTables, forOtherReaders)
{
    write("dallican_pollen", exampleSheet("dallican_pollen"));
    write("cradle_lake_diatoms", exampleSheet("cradle_lake_diatoms"));
    SheetTables odd;
    odd.SheetHeader[2][2] = "Trees, \xC5land";
    odd.SampleCount = sampleLimit;
    const char* const names[] = {"Pinus",
                                 ("Pinus, \xE9toil\xE9"
                                  "e"),
                                 "---",
                                 "Pinus",
                                 "sample",
                                 "A\r\nB",
                                 "'C'",
                                 "1e5",
                                 "---"};
    for (int slot = 1; slot <= 9; ++slot)
        odd.TaxonRecord[slot].Name = names[slot - 1];
    odd.TaxonRecord[2].Subtotal1 = odd.TaxonRecord[4].Subtotal2 = "1";
    for (int sample = 1; sample <= odd.SampleCount; ++sample) {
        odd.SampleField(sample, 1) = std::to_string(sample);
        odd.SampleField(sample, 2) = sample < 5 ? "10" : "1-" + std::to_string(sample); // some are equal
        for (int slot = 1; slot <= 8; ++slot)
            odd.Count(sample, slot) = sample % 7 == 0 ? 0 : sample * slot % 11;
    }
    odd.Count(3, 3) = -2;
    std::swap(odd.KeyIndexOfRow[2], odd.KeyIndexOfRow[8]);
    write("odd", odd);
}
