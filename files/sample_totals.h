#pragma once

#include "core/sheet_tables.h"

#include <optional>
#include <vector>

/// The sums at the foot of a data sheet, for one sample.
struct SampleTotals {
    int subtotal1 = 0; ///< sum of count times flag
    int subtotal2 = 0;
    int all = 0;
};

/// The sums of samples 1 to SampleCount; element 0 is unused. Nothing if one of them does not fit into 16
/// bits, which no data sheet can hold.
std::optional<std::vector<SampleTotals>> sampleTotals(const SheetTables& sheet);
