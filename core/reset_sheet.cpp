#include "core/reset_sheet.h"

#include "core/hooks.h"
#include "core/main_screen.h"
#include "core/recount_totals.h"
#include "core/sheet_state.h"

#include <utility>

static void resetState()
{
    SheetState before = std::exchange(sheet, SheetState());
    static_cast<KeyAssignment&>(sheet) = static_cast<KeyAssignment&&>(before);
    static_cast<ActionRecord&>(sheet) = static_cast<ActionRecord&&>(before);
    sheet.SoundOn = before.SoundOn;
    sheet.BackupSlot = before.BackupSlot;
    sheet.DiagramColour = before.DiagramColour;
}

static void resetScreen()
{
    MainScreen before = std::exchange(frmMain, MainScreen());
    frmMain.visible = before.visible;
    frmMain.Combo1 = std::move(before.Combo1);
    frmMain.Text7 = std::move(before.Text7);
    frmMain.forwardRevision = before.forwardRevision;
    frmMain.Picture2 = std::move(before.Picture2);
    frmMain.Picture2.clearPicture();
    frmMain.Combo2.itemsRevision = before.Combo2.itemsRevision + 1;
    frmMain.mnuSaveHistory = before.mnuSaveHistory; // the log goes on
    frmMain.mnuItalic = before.mnuItalic;
    frmMain.mnuFontSize = before.mnuFontSize;
    frmMain.mnuAlign = before.mnuAlign;
    frmMain.mnuFavorite = before.mnuFavorite;
    for (int slot = 1; slot <= taxonSlots; ++slot) {
        frmMain.Text1[slot].fontSize = before.Text1[slot].fontSize;
        frmMain.Text1[slot].rightAligned = before.Text1[slot].rightAligned;
    }
    hooks.ArrangeTaxonCells();
}

void resetSheet()
{
    resetState();
    resetScreen();
    RecountTotals(sheet.CurrentSample);
}
