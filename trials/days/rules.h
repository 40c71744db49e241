#pragma once

#include "core/sheet_state_type.h"

#include <stdexcept>
#include <string>

/// What must be true after every event, whatever it was.

struct BrokenRule : std::runtime_error {
    using runtime_error::runtime_error;
};

void require(bool held, const char* rule, int at = -1);

/// Boxes and tables agree, totals are the sums, maps are inverse, modes and windows fit together.
void checkWhatIsAlwaysTrue();

/// What a data sheet keeps of the sheet, as one number.
std::size_t keptInFile();

/// The counts as they were before all that can be taken back.
using Counts = std::vector<std::array<std::int64_t, taxonSlots + 1>>; ///< by sample and slot
Counts countsBeforeUndo();

/// A text of the sheet has a double quotation mark, which only a file edited by hand can bring in. The format
/// of the files has no answer to it.
bool holdsQuotationMark();

/// The two are the same sheet, once saved and once opened again. `opened` shows its last sample.
void requireSameSheet(const SheetState& saved, const SheetState& opened);
