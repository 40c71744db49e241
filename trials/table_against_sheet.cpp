// Arguments: a data sheet, then tables of counts. Says whether each of them gives the counts of the sheet.

#include "files/data_sheet_reader.h"
#include "platform/code_page.h"
#include "tables/count_table.h"
#include "tables/table_encoding.h"

#include <cstdio>
#include <fstream>
#include <iterator>

namespace {

std::string bytesOf(const char* path)
{
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

/// Empty if they are equal.
std::string difference(const CountTable& table, const SheetTables& sheet)
{
    if (!table.refusal.empty())
        return table.refusal;
    if (table.samples.size() != static_cast<std::size_t>(sheet.SampleCount))
        return "other samples";
    for (std::size_t taxon = 0; taxon < taxonSlots; ++taxon)
        if ((taxon < table.taxa.size() ? table.taxa[taxon] : "---") != sheet.TaxonRecord[taxon + 1].Name)
            return "another taxon " + std::to_string(taxon + 1);
    for (std::size_t sample = 0; sample < table.samples.size(); ++sample) {
        const int column = static_cast<int>(sample) + 1;
        if (table.samples[sample] != sheet.SampleField(column, 2))
            return "another name of sample " + std::to_string(column);
        for (std::size_t taxon = 0; taxon < table.taxa.size(); ++taxon)
            if (table.count(sample, taxon) != sheet.Count(column, static_cast<int>(taxon) + 1))
                return "another count of " + table.taxa[taxon] + " in " + table.samples[sample];
    }
    return {};
}

} // namespace

int main(int argc, char* argv[])
{
    SheetTables sheet;
    const std::string text = argc > 1 ? fileTextInCodePage(bytesOf(argv[1])) : "";
    if (argc < 3 || !readDataSheet(text, sheet))
        return 2;
    bool equal = true;
    for (int i = 2; i < argc; ++i) {
        const DecodedTable decoded = decodeTable(bytesOf(argv[i]));
        const std::string found = difference(readCountTable(decoded.text, {}), sheet);
        std::printf("%s (%s): %s\n", argv[i], decoded.encoding,
                    found.empty() ? "the counts of the sheet" : found.c_str());
        equal = equal && found.empty();
    }
    return equal ? 0 : 1;
}
