#include "sheet/modify_mode.h"

#include "core/amending.h"
#include "core/cue.h"
#include "core/editing.h"
#include "core/main_screen.h"
#include "core/number_text.h"
#include "core/sheet_state.h"
#include "sheet/focus_and_pointer.h"
#include "sheet/name_display.h"

#include <algorithm>

void mnuStartAmend_Click()
{
    frmMain.Text4.enabled = true;
    frmMain.Text4.text = sheet.SampleNote(sheet.CurrentSample, 0);
    for (int item = 1; item <= infoItems; ++item) {
        frmMain.Label10[item].visible = frmMain.Label10[item].enabled = true;
        frmMain.Text5[item].enabled = true;
    }
    AmendingOnOff(0);
}

void mnuFinishAmend_Click()
{
    leaveEditedBox(); // the button and the menu leave the focus in the box
    frmMain.Text4.enabled = false;
    for (int item = 1; item <= infoItems; ++item)
        frmMain.Label10[item].enabled = frmMain.Text5[item].enabled = false; // boxes keep their captions
    ApplyItalics();
    AmendingOnOff(1);
}

void Command3_Click(int index)
{
    frmMain.SSTab1 = 0;
    if (index == 0)
        mnuStartAmend_Click();
    else
        mnuFinishAmend_Click();
}

bool Text1_MouseDown(int slot, bool rightButton)
{
    if (!sheet.Modifying) {
        frmMain.focus = MainFocus::Text99;
        return false;
    }
    if (!rightButton || slot == 0) // the sample's name is no row to move
        return false;
    sheet.MoveSource = slot;
    return true;
}

bool Text2_MouseDown(int slot, bool rightButton)
{
    sheet.PreviousCount = static_cast<float>(wholeNumber(frmMain.Text2[slot].text));
    return Text1_MouseDown(slot, rightButton);
}

int goFromCell(int slot, int step)
{
    const int next = std::clamp(slot + step, 1, taxonSlots);
    frmMain.SSTab1 = (next - 1) / keysPerLayer;
    return next;
}

/// Of a double click the captions of the additional info stay on show, greyed.
static void endEditing()
{
    if (!sheet.Modifying)
        return;
    leaveEditedBox();
    frmMain.Text4.enabled = false;
    ApplyItalics();
    AmendingOnOff(1);
    for (int item = 1; item <= infoItems; ++item)
        frmMain.Label10[item].enabled = frmMain.Text5[item].enabled = false;
    frmMain.notice = "Counting again"; // what is typed next would count
    playCue(Cue::SoundError);
}

void Text1_DblClick()
{
    endEditing();
}

void Text2_DblClick()
{
    endEditing();
}

void Text4_DblClick()
{
    endEditing();
}

void Label10_Click(int item)
{
    std::string& caption = frmMain.Label10[item].caption;
    if (!caption.ends_with(':'))
        caption += ':';
}
