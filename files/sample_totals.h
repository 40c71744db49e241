#pragma once

#include "core/sheet_state_type.h"

#include <optional>
#include <vector>

/// The sums at the foot of a data sheet, for one sample.
struct SampleTotals {
    std::int16_t subtotal1 = 0; ///< sum of count times flag
    std::int16_t subtotal2 = 0;
    std::int16_t all = 0;
};

/// The sums of samples 1 to SampleCount; element 0 is unused. Nothing if one of them does not fit into 16
/// bits, which no data sheet can hold.
std::optional<std::vector<SampleTotals>> sampleTotals(const SheetState& sheet);
