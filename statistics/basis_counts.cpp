#include "statistics/basis_counts.h"

BasisCounts basisCounts(const SheetTables& tables, int sample,
                        const std::array<std::int32_t, taxonSlots + 1>& weights, int marker)
{
    BasisCounts counts;
    for (int slot = 1; slot <= taxonSlots; ++slot) {
        const std::int32_t count = counts.all[slot] = tables.Count(sample, slot);
        counts.inside[slot] = weights[slot] != 0;
        counts.sum += static_cast<double>(count) * weights[slot];
        counts.hasNegative = counts.hasNegative || count < 0;
        if (counts.inside[slot] && slot != marker)
            counts.members[slot] = count;
    }
    return counts;
}
