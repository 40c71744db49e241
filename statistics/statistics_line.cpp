#include "statistics/statistics_line.h"

#include "core/number_text.h"
#include "core/sheet_state.h"
#include "sheet/basis.h"
#include "statistics/recount.h"
#include "statistics/richness.h"
#include "statistics/written_numbers.h"

#include <cmath>
#include <cstdlib>

StatisticsLine statisticsLine;

namespace {

constexpr double leastIndividuals = 20;

/// The newest count that can be taken back, if it went into the sample on show; else 0.
int slotCountedLast()
{
    for (const UndoEntry& entry : sheet.UndoStack)
        if (entry.slot != 0)
            return entry.sample == sheet.CurrentSample ? std::abs(entry.slot) : 0;
    return 0;
}

} // namespace

std::string statisticsLineText(const BasisCounts& counts, int slot, std::string_view name, double halfWidth)
{
    const auto richness = measureRichness(counts.members);
    if (counts.hasNegative || counts.sum < leastIndividuals || !richness)
        return {};
    std::string text = "Coverage " + oneDecimal(100 * richness->coverage) +
                       " % | next 100: " + oneDecimal(richness->newTaxa(100)) + " new taxa";
    if (slot == 0)
        return text;
    const double share = counts.share(slot);
    const auto limits = counts.limits(slot);
    const auto needed = counts.inside[slot] ? sumNeededInside(share, halfWidth / 100)
                                            : sumNeededOutside(share, halfWidth / 100);
    if (!limits || !needed)
        return text;
    text.append(" | ").append(name).append(" ") += oneDecimal(100 * share) + " % (" +
                                                   oneDecimal(100 * limits->lower) + " to " +
                                                   oneDecimal(100 * limits->upper) + ") | ";
    const double more = std::ceil(*needed) - counts.sum;
    text +=
        (more > 0 ? withThousands(more) + " more" : "enough") + " for +-" + plainDecimal(halfWidth) + " %";
    return text;
}

void refreshStatisticsLine()
{
    if (!statisticsLine.mnuStatisticsLine.checked)
        return;
    statisticsLine.text.clear();
    if (areSumsHidden())
        return;
    const int slot = slotCountedLast();
    statisticsLine.text = statisticsLineText(basisCounts(sheet, sheet.CurrentSample, basisWeights(), 0), slot,
                                             sheet.TaxonRecord[slot].Name, statisticsLine.halfWidth);
}

void mnuStatisticsLine_Click()
{
    bool& on = statisticsLine.mnuStatisticsLine.checked;
    on = !on;
    statisticsLine.text.clear();
    refreshStatisticsLine();
}

void chooseHalfWidth(double percent)
{
    statisticsLine.halfWidth = percent;
    refreshStatisticsLine();
}
