#include "statistics/sheet_concentrations.h"

#include "core/number_text.h"
#include "core/sheet_state.h"
#include "platform/code_page.h"
#include "statistics/chosen_basis.h"
#include "statistics/concentration.h"
#include "statistics/laboratory.h"
#include "statistics/recount.h"

std::vector<Counted> countedIn(int sample, const std::vector<ExportedTaxon>& taxa, int marker)
{
    std::vector<Counted> counted = {{sumName(0)}, {sumName(1)}, {sumName(2)}};
    for (const ExportedTaxon& taxon : taxa) {
        const int slot = taxon.keyIndex;
        if (slot == marker)
            continue;
        const double x = sheet.Count(sample, slot);
        counted.push_back({taxon.name, x});
        counted[0].x += x;
        counted[1].x += wholeNumber(sheet.TaxonRecord[slot].Subtotal1) != 0 ? x : 0;
        counted[2].x += wholeNumber(sheet.TaxonRecord[slot].Subtotal2) != 0 ? x : 0;
    }
    return counted;
}

std::optional<MeasuredConcentration> concentrationOfSums(int sample)
{
    const int marker = markerSlot();
    if (marker == 0 || isHidden(sample))
        return {};
    const LabFields& fields = labFields(sample);
    const Preparation made = preparationOf(fields);
    const std::vector<Counted> counted = countedIn(sample, exportedTaxa(sheet), marker);
    MeasuredConcentration measured;
    measured.unit = utf8FromCodePage(fields[labQuantityUnit]);
    bool any = false;
    for (std::size_t sum = 0; sum < measured.sums.size(); ++sum) {
        const auto found = concentrationOf(counted[sum].x, sheet.Count(sample, marker), made);
        if (!found)
            continue;
        const Limits limits = found->limits.value_or(Limits());
        measured.sums[sum] = {found->value, limits.lower, limits.upper};
        any = true;
    }
    return any ? std::optional(measured) : std::nullopt;
}
