// "Limits": how sure is a percentage?

#include "core/number_text.h"
#include "core/sheet_state.h"
#include "statistics/chosen_basis.h"
#include "statistics/csv_line.h"
#include "statistics/statistics_form.h"
#include "statistics/statistics_line.h"
#include "statistics/statistics_pages.h"
#include "statistics/written_numbers.h"
#include "tables/exported_taxa.h"

#include <algorithm>
#include <cmath>

namespace {

std::optional<double> percent(std::optional<double> fraction)
{
    return fraction ? std::optional(100 * *fraction) : std::nullopt;
}

/// Individuals still to be counted for limits of the half-width asked for.
std::optional<double> moreNeeded(const BasisCounts& counts, int slot)
{
    const double h = statisticsLine.halfWidth / 100;
    const auto needed = counts.inside[slot] ? sumNeededInside(counts.share(slot), h)
                                            : sumNeededOutside(counts.share(slot), h);
    return needed ? std::optional(std::max(0.0, std::ceil(*needed) - counts.sum)) : std::nullopt;
}

StatTable::Row rowOf(const BasisCounts& counts, const ExportedTaxon& taxon)
{
    const int slot = taxon.keyIndex;
    const auto limits = counts.hasNegative ? std::nullopt : counts.limits(slot);
    const auto share = counts.sum > 0 ? std::optional(counts.share(slot)) : std::nullopt;
    StatTable::Row row;
    row.cells = {{taxon.name},
                 cell(counts.all[slot], withThousands),
                 cell(percent(share), oneDecimal),
                 cell(limits ? percent(limits->lower) : std::nullopt, oneDecimal),
                 cell(limits ? percent(limits->upper) : std::nullopt, oneDecimal),
                 {counts.inside[slot] ? "inside" : "outside"},
                 cell(limits ? moreNeeded(counts, slot) : std::nullopt, withThousands)};
    if (share)
        row.bars[0] = StatTable::Bar{*share, limits};
    return row;
}

std::vector<StatTable::Column> columns()
{
    return {{"Taxon", "", true},
            {"Count", "Individuals of the taxon."},
            {"%", "Count / individuals of the % basis. A taxon outside the basis may pass 100 %."},
            {"Lower", "Lower 95 % limit. Inside the sum the interval of Wilson (1927; Mosimann 1965, Maher "
                      "1972), outside it that of a ratio (Mosimann 1965). It does not hold where individuals "
                      "cling together."},
            {"Upper", "Upper 95 % limit, as the lower one. Outside the sum there are none below 4 "
                      "individuals."},
            {"Sum", "Whether the taxon is inside the % basis: the formulas differ.", true},
            {"More for +-" + plainDecimal(statisticsLine.halfWidth) + " %",
             "Individuals of the basis still to be counted until the limits lie so far from their middle, if "
             "the share stays as it is."}};
}

} // namespace

void fillLimits()
{
    const bool all = frmStatistics.Option1[1].selected;
    std::vector<StatTable::Column> heads = columns();
    if (all)
        heads.insert(heads.begin(), {"Sample", "", true});
    std::vector<StatTable::Row> rows;
    const std::vector<ExportedTaxon> taxa = exportedTaxa(sheet);
    for (const int sample : samplesInView()) {
        const BasisCounts counts = countsOf(sample);
        for (const ExportedTaxon& taxon : taxa) {
            rows.push_back(rowOf(counts, taxon));
            if (all)
                rows.back().cells.insert(rows.back().cells.begin(), {sheet.SampleField(sample, 2)});
        }
    }
    frmStatistics.tables[limitsPage].fill(std::move(heads), std::move(rows), "Share and its limits");
}

std::string limitsCsv()
{
    CsvLines lines("sample,basis,taxon,inside,x,n,percent,lower,upper");
    const std::vector<ExportedTaxon> taxa = exportedTaxa(sheet);
    for (const int sample : samplesInView()) {
        const BasisCounts counts = countsOf(sample);
        for (const ExportedTaxon& taxon : taxa) {
            const int slot = taxon.keyIndex;
            const auto limits = counts.hasNegative ? std::nullopt : counts.limits(slot);
            lines.text(sheet.SampleField(sample, 2))
                .text(sumName(chosenBasis()))
                .text(taxon.name)
                .number(counts.inside[slot] ? 1 : 0)
                .number(counts.all[slot])
                .number(counts.sum)
                .number(counts.sum > 0 ? percent(counts.share(slot)) : std::nullopt)
                .number(limits ? percent(limits->lower) : std::nullopt)
                .number(limits ? percent(limits->upper) : std::nullopt)
                .endLine();
        }
    }
    return lines.take();
}
