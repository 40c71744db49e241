#include "core/highlight.h"

#include "core/main_screen.h"
#include "core/sheet_state.h"

static void paint(int slot, Colour colour)
{
    frmMain.Text1[slot].backColor = frmMain.Text2[slot].backColor = colour;
}

void highlight(int slot, Colour colour)
{
    paint(sheet.HighlightRow, plainRow);
    if (slot == 0)
        return;
    paint(slot, colour);
    sheet.HighlightRow = slot;
}
