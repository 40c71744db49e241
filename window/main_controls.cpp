// What the controls of the main window are and what they do.

#include "core/editing.h"
#include "core/endings.h"
#include "core/main_screen.h"
#include "files/next_sample.h"
#include "files/open_sheet.h"
#include "files/rename_info.h"
#include "files/save_sheet.h"
#include "sheet/basis.h"
#include "sheet/focus_and_pointer.h"
#include "sheet/live_curve.h"
#include "sheet/modify_mode.h"
#include "sheet/name_display.h"
#include "sheet/percent_view.h"
#include "sheet/sample_choice.h"
#include "statistics/statistics_line.h"
#include "statistics/target.h"
#include "tables/taxa_form.h"
#include "window/main_window.h"

namespace {

bool indexPressed(int slot, bool /*rightButton*/)
{
    return Label1_Click(slot);
}

bool captionPressed(int item, bool /*rightButton*/)
{
    Label10_Click(item);
    return false;
}

bool percentPressed(int /*index*/, bool rightButton)
{
    if (!rightButton)
        Command6_MouseDown();
    return false;
}

bool curvePressed(int /*index*/, bool rightButton)
{
    rightButton ? mnuDiversityRB_Open() : giveFocusBack();
    return rightButton;
}

} // namespace

std::vector<ControlRow> mainControls()
{
    MainScreen& f = frmMain;
    return {
        {.name = "Text1",
         .record = f.Text1.data(),
         .first = 0,
         .last = taxonSlots,
         .edited = Text1_Edited,
         .entered = Text1_GotFocus,
         .pressed = Text1_MouseDown,
         .menu = "mnuRightButton",
         .doubleClicked = Text1_DblClick,
         .pasted = Text1_Paste,
         .hovered = Text1_MouseMove},
        {.name = "Text2",
         .record = f.Text2.data(),
         .first = 1,
         .last = taxonSlots,
         .edited = Text2_Edited,
         .entered = Text2_GotFocus,
         .pressed = Text2_MouseDown,
         .menu = "mnuRightButton",
         .doubleClicked = Text2_DblClick,
         .hovered = Text1_MouseMove,
         .isNumber = true},
        {.name = "Label1",
         .record = f.Label1.data(),
         .first = 0,
         .last = taxonSlots,
         .pressed = indexPressed,
         .menu = "mnuRightButton"},
        {.name = "Text3", .record = f.Text3.data(), .first = 0, .last = 2},
        {.name = "Text4",
         .record = &f.Text4,
         .edited = Text4_Edited,
         .entered = Text4_GotFocus,
         .doubleClicked = Text4_DblClick},
        {.name = "Text5",
         .record = f.Text5.data(),
         .first = 1,
         .last = infoItems,
         .edited = Text5_Edited,
         .entered = Text5_GotFocus},
        {.name = "Text6", .record = &f.Text6},
        {.name = "Text7", .record = &f.Text7},
        {.name = "Combo1", .record = &f.Combo1, .clicked = giveFocusBack},
        {.name = "Combo2", .record = &f.Combo2, .edited = Combo2_Change, .chosen = Combo2_Click},
        {.name = "Label2", .record = f.Label2.data(), .first = 0, .last = 2},
        {.name = "Label4", .record = &f.Label4},
        {.name = "Label10",
         .record = f.Label10.data(),
         .first = 1,
         .last = infoItems,
         .pressed = captionPressed},
        {.name = "Label14", .record = f.Label14.data(), .first = 0, .last = 2},
        {.name = "Option1", .record = f.Option1.data(), .first = 0, .last = 2, .clicked = selectBasis},
        {.name = "Picture2", .pressed = curvePressed, .menu = "mnuDiversityRB"},
        {.name = "ProgressBar1", .record = &f.ProgressBar1},
        {.name = "Command2", .record = f.Command2.data(), .first = 0, .last = 0, .clicked = AbortCount},
        {.name = "Command3", .record = f.Command3.data(), .first = 0, .last = 1, .clicked = Command3_Click},
        {.name = "Command4", .record = f.Command4.data(), .first = 0, .last = 0, .clicked = mnuOpen_Click},
        {.name = "Command5", .record = f.Command5.data(), .first = 0, .last = 0, .clicked = mnuSave_Click},
        {.name = "Command5", .record = f.Command5.data(), .first = 1, .last = 1, .clicked = mnuNext_Click},
        {.name = "Command6", .record = &f.Command6, .pressed = percentPressed}, // works while it is held
        {.name = "Command7",
         .record = f.Command7.data(),
         .first = 1,
         .last = infoItems,
         .clicked = Command7_Click},
        {.name = "Command8", .record = &f.Command8, .clicked = Command8_Click},
        {.name = "Command9", .record = &f.Command9, .clicked = Command9_Click},
        {.name = "StatisticsLine",
         .record = &statisticsLine.Label1,
         .pressed = StatisticsLine_MouseDown,
         .menu = "mnuHalfWidth"},
        {.name = "Target", .record = target.Label1.data(), .first = 0, .last = 2},
    };
}
