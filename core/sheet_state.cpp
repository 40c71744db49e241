#include "core/sheet_state.h"

SheetState sheet;
