#include "statistics/statistics_line.h"

#include "core/number_text.h"
#include "core/sheet_state.h"
#include "sheet/basis.h"
#include "statistics/laboratory.h"
#include "statistics/recount.h"
#include "statistics/richness.h"
#include "statistics/written_numbers.h"

#include <cmath>
#include <cstdlib>

StatisticsLine statisticsLine;

StatisticsLine::StatisticsLine()
{
    Label1.visible = false;
    for (std::size_t index = 0; index < halfWidths.size(); ++index) {
        mnuHalfWidth[index].caption = "+-" + plainDecimal(halfWidths[index]) + " %";
        mnuHalfWidth[index].checked = halfWidths[index] == halfWidth;
    }
}

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
    statisticsLine.Label1.caption.clear();
    if (areSumsHidden())
        return;
    const int slot = slotCountedLast();
    statisticsLine.Label1.caption =
        statisticsLineText(basisCounts(sheet, sheet.CurrentSample, basisWeights(), markerSlot()), slot,
                           sheet.TaxonRecord[slot].Name, statisticsLine.halfWidth);
}

void mnuStatisticsLine_Click()
{
    bool& on = statisticsLine.mnuStatisticsLine.checked;
    on = statisticsLine.Label1.visible = !on;
    statisticsLine.Label1.caption.clear();
    refreshStatisticsLine();
}

bool StatisticsLine_MouseDown(int /*index*/, bool /*rightButton*/)
{
    return true;
}

void mnuHalfWidth_Click(int index)
{
    chooseHalfWidth(halfWidths[static_cast<std::size_t>(index)]);
}

void chooseHalfWidth(double percent)
{
    statisticsLine.halfWidth = percent;
    for (std::size_t index = 0; index < halfWidths.size(); ++index)
        statisticsLine.mnuHalfWidth[index].checked = halfWidths[index] == percent;
    refreshStatisticsLine();
}
