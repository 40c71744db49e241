#pragma once

#include "core/sheet_tables.h"
#include "statistics/limits.h"

#include <array>
#include <cstdint>
#include <optional>

using SlotCounts = std::array<std::int32_t, taxonSlots + 1>;

/// The counts of one sample against the % basis. Index = slot 1 to 135; element 0 is 0.
struct BasisCounts {
    SlotCounts all{};     ///< of every taxon
    SlotCounts members{}; ///< of the taxa of the basis, the marker left out; 0 for the others
    std::array<bool, taxonSlots + 1> inside{}; ///< the taxon is in the basis
    double sum = 0; ///< individuals that percentages are shares of; the marker's too if it is in the basis
    bool hasNegative = false; ///< a count below 0: nothing can be said of the sample

    /// As a fraction of the sum.
    double share(int slot) const { return all[slot] / sum; }
    /// 95 % limits of the share, by the formula for a taxon inside or outside the sum.
    std::optional<Limits> limits(int slot) const
    {
        return inside[slot] ? limitsInside(all[slot], sum) : limitsOutside(all[slot], sum);
    }
};

/// `weights`: of each taxon in the basis, by slot. `marker`: slot of the taxon that was added in the
/// laboratory; 0: none.
BasisCounts basisCounts(const SheetTables& tables, int sample,
                        const std::array<std::int32_t, taxonSlots + 1>& weights, int marker);
