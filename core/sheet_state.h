#pragma once

#include "core/sheet_state_type.h"

/// The one open sheet and all that goes with it. Handlers read and write it directly; code that only computes
/// takes what it needs as arguments and does not include this header.
extern SheetState sheet;
