// Any bytes in place of a table of counts or a list of taxa: what can be taken fits a sheet, whichever way
// round it is read.

#include "files/sheet_text.h"
#include "tables/count_table.h"
#include "tables/table_encoding.h"
#include "tables/taxon_list.h"

#include <cstdint>
#include <cstdlib>

static void require(bool holds)
{
    if (!holds)
        std::abort();
}

static bool fitsAFile(const std::string& text)
{
    return text.find_first_of("\"\r\n") == std::string::npos;
}

static void readAs(const std::string& text, std::optional<Samples> samples)
{
    const CountTable table = readCountTable(text, {samples, true});
    if (!table.refusal.empty())
        return;
    require(!table.taxa.empty() && table.taxa.size() <= taxonSlots);
    require(!table.samples.empty() && table.samples.size() <= sampleLimit);
    require(table.counts.size() == table.taxa.size() * table.samples.size());
    for (const std::int32_t count : table.counts)
        require(count >= 0);
    for (const auto& names : {table.taxa, table.samples})
        for (const std::string& name : names)
            require(!name.empty() && fitsAFile(name));
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string text = decodeTable({reinterpret_cast<const char*>(data), size}).text;
    for (const std::optional<Samples> samples :
         {std::optional<Samples>(), std::optional(Samples::rows), std::optional(Samples::columns)})
        readAs(text, samples);
    static const SheetTables sheet;
    const TaxonPlan plan = planTaxa(readTaxonList(text), sheet);
    int last = 0;
    for (const TaxonPlan::Row& row : plan.rows) {
        require(row.slot > last && row.slot <= taxonSlots);
        require(!row.name.empty() && fitsAFile(row.name));
        last = row.slot;
    }
    return 0;
}
