#include "sheet/focus_and_pointer.h"

#include "core/main_screen.h"
#include "core/sheet_state.h"

void giveFocusBack()
{
    if (!sheet.Modifying)
        frmMain.focus = MainFocus::Text99;
}

void SSTab1_Click(int page)
{
    frmMain.SSTab1 = page;
    giveFocusBack();
}

bool Label1_Click(int slot)
{
    for (Label& label : frmMain.Label1)
        label.bold = false;
    if (slot != 0)
        frmMain.Label1[slot].bold = true;
    sheet.MoveSource = slot;
    return sheet.Modifying && slot != 0;
}

void Text1_MouseMove()
{
    if (sheet.Modifying) {
        frmMain.pointer = Pointer::iBeam;
        return;
    }
    frmMain.pointer = Pointer::arrow;
    if (!sheet.DiagramOpen)
        frmMain.focus = MainFocus::Text99;
}

void Form_MouseMove()
{
    frmMain.pointer = Pointer::arrow;
}
