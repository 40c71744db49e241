// The tables of the fullest sheet for other programs, and counts taken from such a table, beside the plain
// parsing and summing of its counts. With an argument it writes the tables of counts and the tidy one to
// files that begin with it, for others to read and write.

#include "bench/full_sheet.h"
#include "bench/yardsticks.h"
#include "platform/code_page.h"
#include "tables/count_table.h"
#include "tables/export_tables.h"
#include "tables/table_encoding.h"

#include <algorithm>
#include <fstream>
#include <functional>

namespace {

void measure(const char* what, const std::function<std::size_t()>& work)
{
    std::vector<double> times;
    std::vector<double> sums;
    std::size_t size = 0;
    for (int round = 0; round < 51; ++round) {
        times.push_back(milliseconds([&] { size += work(); }));
        sums.push_back(sheetSumMilliseconds());
    }
    report(what, median(times), median(sums), 15);
    if (size == 0)
        std::exit(1);
}

std::string utf16(const std::string& text)
{
    std::string bytes = "\xFF\xFE";
    for (const char16_t unit : fromCodePage(text)) {
        bytes += static_cast<char>(unit & 0xFF);
        bytes += static_cast<char>(unit >> 8);
    }
    return bytes;
}

std::size_t import(const std::string& bytes)
{
    const CountTable table = readCountTable(decodeTable(bytes).text, {});
    return table.taxa.size() == taxonSlots && table.samples.size() == sampleLimit ? 1 : 0;
}

} // namespace

int main(int argc, char* argv[])
{
    const SheetTables sheet = fullSheet();
    const std::string counts = countsTable(sheet);
    if (argc == 2) {
        std::ofstream(argv[1] + std::string("_counts.csv"), std::ios::binary) << counts;
        std::ofstream(argv[1] + std::string("_tidy.csv"), std::ios::binary) << tidyTable(sheet, "full");
        return 0;
    }
    measure("table of counts of the fullest sheet", [&] { return countsTable(sheet).size(); });
    measure("tidy table of it", [&] { return tidyTable(sheet, "full").size(); });
    measure("table of its taxa", [&] { return taxaTable(sheet).size(); });
    measure("counts from the table of counts", [&] { return import(counts); });
    std::string semicolons = counts;
    std::replace(semicolons.begin(), semicolons.end(), ',', ';');
    const std::string wide = utf16(semicolons);
    measure("counts from it with semicolons and in UTF-16", [&] { return import(wide); });
    return 0;
}
