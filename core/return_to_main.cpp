#include "core/return_to_main.h"

#include "core/main_screen.h"
#include "core/sheet_state.h"

void returnToMain()
{
    if (sheet.Unloading)
        return;
    frmMain.visible = frmMain.enabled = true;
    if (!sheet.Modifying)
        frmMain.focus = MainFocus::Text99;
}
