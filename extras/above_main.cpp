#include "extras/above_main.h"

#include "core/main_screen.h"
#include "core/sheet_state.h"

void openAboveMain(bool& visible)
{
    visible = true;
    frmMain.enabled = false;
}

void closeAboveMain(bool& visible)
{
    visible = false;
    frmMain.enabled = true;
    if (!sheet.Modifying)
        frmMain.focus = MainFocus::Text99;
}
