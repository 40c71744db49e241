// "Compare": two samples, or two counts of one, side by side.

#include "core/sheet_state.h"
#include "statistics/comparison.h"
#include "statistics/csv_line.h"
#include "statistics/recount.h"
#include "statistics/statistics_form.h"
#include "statistics/statistics_pages.h"
#include "statistics/written_numbers.h"
#include "tables/exported_taxa.h"

namespace {

struct Side {
    std::string name;
    BasisCounts counts;
};

/// The sample picked on a side; nothing if it is gone, or is not to be looked at yet.
std::optional<Side> pickedSide(int side)
{
    const std::string& name = frmStatistics.Combo1[side].text;
    for (int sample = 1; sample <= sheet.SampleCount; ++sample)
        if (sheet.SampleField(sample, 2) == name && !isHidden(sample))
            return Side{name, countsOf(sample)};
    return {};
}

std::optional<Limits> limitsOf(const Side& side, int slot)
{
    return side.counts.hasNegative ? std::nullopt : side.counts.limits(slot);
}

std::optional<double> shareOf(const Side& side, int slot)
{
    return side.counts.sum > 0 ? std::optional(side.counts.share(slot)) : std::nullopt;
}

/// "5.3 (3.8 to 7.4)"
StatTable::Cell shareCell(const Side& side, int slot)
{
    const auto share = shareOf(side, slot);
    if (!share)
        return {};
    StatTable::Cell made{oneDecimal(100 * *share), *share};
    if (const auto limits = limitsOf(side, slot))
        made.text += " (" + oneDecimal(100 * limits->lower) + " to " + oneDecimal(100 * limits->upper) + ")";
    return made;
}

StatTable::Row rowOf(const Side& first, const Side& second, const ExportedTaxon& taxon)
{
    const int slot = taxon.keyIndex;
    const auto apart = areApart(limitsOf(first, slot), limitsOf(second, slot));
    StatTable::Row row;
    row.cells = {{taxon.name},
                 cell(first.counts.all[slot], withThousands),
                 shareCell(first, slot),
                 cell(second.counts.all[slot], withThousands),
                 shareCell(second, slot),
                 {!apart   ? ""
                  : *apart ? "apart"
                           : "overlap"}};
    int at = 0;
    for (const Side* const side : {&first, &second}) {
        if (const auto share = shareOf(*side, slot))
            row.bars[at] = StatTable::Bar{*share, limitsOf(*side, slot)};
        ++at;
    }
    return row;
}

bool isInEither(const Side& first, const Side& second, const ExportedTaxon& taxon)
{
    return first.counts.all[taxon.keyIndex] != 0 || second.counts.all[taxon.keyIndex] != 0;
}

/// The first time, and when a sample has gone: the sample on show and the one before it.
void listSamples()
{
    std::vector<std::string> names;
    for (int sample = 1; sample <= sheet.SampleCount; ++sample)
        if (!isHidden(sample))
            names.push_back(sheet.SampleField(sample, 2));
    for (int side = 0; side < 2; ++side) {
        ComboBox& combo = frmStatistics.Combo1[side];
        if (combo.items != names) {
            combo.items = names;
            ++combo.itemsRevision;
        }
        if (pickedSide(side) || names.empty())
            continue;
        const int neighbour = sheet.CurrentSample > 1 ? sheet.CurrentSample - 1 : 2;
        const int sample = side == 1 ? sheet.CurrentSample : neighbour;
        combo.text =
            sample <= sheet.SampleCount && !isHidden(sample) ? sheet.SampleField(sample, 2) : names[0];
    }
}

} // namespace

void fillComparison()
{
    listSamples();
    const auto first = pickedSide(0);
    const auto second = pickedSide(1);
    frmStatistics.Command3.enabled = mayCountAgain();
    frmStatistics.Command4.enabled = recount.hiddenSerial != 0;
    std::vector<StatTable::Row> rows;
    std::string& said = frmStatistics.Label2.caption;
    said = recount.hiddenSerial != 0 ? "The sums of the recount stay hidden until it is finished." : "";
    if (!first || !second) {
        frmStatistics.tables[comparePage].fill({}, {});
        return;
    }
    for (const ExportedTaxon& taxon : exportedTaxa(sheet))
        if (isInEither(*first, *second, taxon))
            rows.push_back(rowOf(*first, *second, taxon));
    if (said.empty())
        said = comparisonText(first->counts, second->counts);
    const char* const shares = "Share and 95 % limits, as on page Limits.";
    frmStatistics.tables[comparePage].fill(
        {{"Taxon", "", true},
         {"Count, " + first->name, "Individuals in the first sample."},
         {"%, " + first->name, shares},
         {"Count, " + second->name, "Individuals in the second sample."},
         {"%, " + second->name, shares},
         {"Limits",
          "Shares whose limits lie apart differ, beyond 95 % certainty. Limits that overlap a little may "
          "belong to shares that differ all the same; of twenty taxa one may lie apart by chance.",
          true}},
        std::move(rows), "Shares and their limits");
}

std::string comparisonCsv()
{
    CsvLines lines(
        "taxon,inside,sample_1,x_1,n_1,percent_1,lower_1,upper_1,sample_2,x_2,n_2,percent_2,lower_2,"
        "upper_2,apart");
    const auto first = pickedSide(0);
    const auto second = pickedSide(1);
    if (!first || !second)
        return lines.take();
    for (const ExportedTaxon& taxon : exportedTaxa(sheet)) {
        if (!isInEither(*first, *second, taxon))
            continue;
        const int slot = taxon.keyIndex;
        lines.text(taxon.name).number(first->counts.inside[slot] ? 1 : 0);
        for (const Side* const side : {&*first, &*second}) {
            const auto limits = limitsOf(*side, slot);
            const auto share = shareOf(*side, slot);
            lines.text(side->name).number(side->counts.all[slot]).number(side->counts.sum);
            lines.number(share ? std::optional(100 * *share) : std::nullopt)
                .number(limits ? std::optional(100 * limits->lower) : std::nullopt)
                .number(limits ? std::optional(100 * limits->upper) : std::nullopt);
        }
        const auto apart = areApart(limitsOf(*first, slot), limitsOf(*second, slot));
        lines.number(apart ? std::optional(*apart ? 1.0 : 0.0) : std::nullopt).endLine();
    }
    return lines.take();
}
