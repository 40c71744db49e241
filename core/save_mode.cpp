#include "core/save_mode.h"

#include "core/sheet_state.h"

SaveMode plainOrUntouched()
{
    return sheet.SheetPristine ? SaveMode::untouched : SaveMode::plain;
}
