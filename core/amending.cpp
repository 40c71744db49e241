#include "core/amending.h"

#include "core/action_log.h"
#include "core/main_screen.h"
#include "core/offers.h"
#include "core/sheet_state.h"

static void showIndexes(bool shown)
{
    for (int slot = 1; slot <= taxonSlots; ++slot) {
        Label& index = frmMain.Label1[slot];
        index.visible = index.enabled = shown;
        if (!shown)
            index.bold = false;
    }
}

static void enableCounting(bool enabled)
{
    MainScreen& f = frmMain;
    for (Button* button : {&f.Command3[0], &f.Command2[0], &f.Command4[0], &f.Command5[0], &f.Command5[1]})
        button->enabled = enabled;
    for (MenuEntry* entry :
         {&f.mnuStartAmend, &f.mnuSave, &f.mnuUndo, &f.mnuReset, &f.mnuNew, &f.mnuNewFromTable, &f.mnuOpen,
          &f.mnuSaveAs, &f.mnuPercent, &f.mnuSaveCopy, &f.mnuFind})
        entry->enabled = enabled;
    for (TextBox& sum : f.Text3)
        sum.enabled = enabled;
    for (Label* label : {&f.Label1[0], &f.Label2[0], &f.Label2[1], &f.Label2[2]})
        label->visible = enabled;
    f.Command3[1].enabled = f.mnuFinishAmend.enabled = f.mnuTaxaFromList.enabled = !enabled;
    f.mnuNext.enabled = false; // in both directions; the next count opens it
}

void AmendingOnOff(int turnOff)
{
    const bool on = turnOff == 0;
    if (on && !sheet.Modifying)
        sheet.UnsavedEdits = frmMain.Command5[0].enabled;
    sheet.Modifying = on;
    frmMain.sheetColour = on ? std::optional(modifyColour) : std::nullopt;
    enableCounting(!on);
    showIndexes(on);
    for (int item = 1; item <= infoItems; ++item)
        frmMain.Command7[item].visible = on;
    if (on) {
        frmMain.focus = MainFocus::Text4;
        frmMain.Text4.caret = static_cast<int>(frmMain.Text4.text.size());
    } else {
        frmMain.SSTab1 = 0;
        frmMain.focus = MainFocus::Text99;
        frmMain.pointer = Pointer::arrow;
    }
    logAction(on ? "(Modify)" : "(Resume)");
    // A sheet that has not been counted can neither be reset nor followed by a next sample.
    if (!on && sheet.SheetPristine) {
        frmMain.Command2[0].enabled = false;
        offerNextSample(false);
    }
}
