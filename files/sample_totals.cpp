#include "files/sample_totals.h"

#include "core/number_text.h"

#include <limits>

static bool fits(std::int64_t sum)
{
    return sum >= std::numeric_limits<std::int16_t>::min() && sum <= std::numeric_limits<std::int16_t>::max();
}

std::optional<std::vector<SampleTotals>> sampleTotals(const SheetTables& sheet)
{
    const auto samples = static_cast<std::size_t>(sheet.SampleCount) + 1;
    std::vector<std::array<std::int64_t, 3>> sums(samples);
    for (int slot = 1; slot <= taxonSlots; ++slot) {
        const std::int64_t flag1 = wholeNumber(sheet.TaxonRecord[slot].Subtotal1);
        const std::int64_t flag2 = wholeNumber(sheet.TaxonRecord[slot].Subtotal2);
        for (int sample = 1; sample <= sheet.SampleCount; ++sample) {
            const std::int64_t count = sheet.Count(sample, slot);
            auto& [sum1, sum2, all] = sums[sample];
            // Beyond 32 bits nothing fits any more; held there, 135 of them stay within 64.
            sum1 += within32Bits(count * flag1);
            sum2 += within32Bits(count * flag2);
            all += count;
        }
    }
    std::vector<SampleTotals> totals(samples);
    for (std::size_t sample = 1; sample < samples; ++sample) {
        const auto& [sum1, sum2, all] = sums[sample];
        if (!fits(sum1) || !fits(sum2) || !fits(all))
            return std::nullopt;
        totals[sample] = {static_cast<int>(sum1), static_cast<int>(sum2), static_cast<int>(all)};
    }
    return totals;
}
