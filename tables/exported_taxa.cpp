#include "tables/exported_taxa.h"

#include "core/number_text.h"
#include "core/taxon_name.h"

#include <set>

static std::string groupOf(const SheetTables& sheet, const TaxonFields& taxon)
{
    if (wholeNumber(taxon.Subtotal1) != 0)
        return sheet.SheetHeader[2][2];
    return wholeNumber(taxon.Subtotal2) != 0 ? sheet.SheetHeader[2][3] : std::string();
}

/// Gives names that stand twice a number.
static void tellApart(std::vector<ExportedTaxon>& taxa)
{
    std::set<std::string> given;
    for (const ExportedTaxon& taxon : taxa)
        given.insert(taxon.name);
    std::set<std::string> seen = {"sample", "depth"};
    for (ExportedTaxon& taxon : taxa) {
        const std::string name = taxon.name;
        bool taken = !seen.insert(name).second;
        for (int number = 2; taken; ++number) {
            taxon.name = name + " (" + decimalText(number) + ")";
            taken = given.count(taxon.name) != 0 || !seen.insert(taxon.name).second;
        }
    }
}

std::vector<ExportedTaxon> exportedTaxa(const SheetTables& sheet)
{
    std::vector<ExportedTaxon> taxa;
    for (int row = 1; row <= taxonSlots; ++row) {
        const int keyIndex = sheet.KeyIndexOfRow[row];
        const TaxonFields& fields = sheet.TaxonRecord[keyIndex];
        ExportedTaxon taxon{keyIndex, fields.Name, groupOf(sheet, fields)};
        for (int sample = 1; sample <= sheet.SampleCount; ++sample) {
            const int count = sheet.Count(sample, keyIndex);
            taxon.total += count;
            taxon.samples += count != 0;
        }
        const bool named = !fields.Name.empty() && fields.Name != noText;
        if (!named && taxon.samples == 0)
            continue;
        if (!named)
            taxon.name = "Unnamed " + decimalText(keyIndex);
        taxa.push_back(std::move(taxon));
    }
    tellApart(taxa);
    return taxa;
}
