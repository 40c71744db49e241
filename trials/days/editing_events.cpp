#include "trials/days/session.h"

#include "core/editing.h"
#include "core/main_keys.h"
#include "core/main_screen.h"
#include "core/sheet_state.h"
#include "core/transfer_taxa.h"
#include "files/rename_info.h"
#include "sheet/focus_and_pointer.h"
#include "sheet/modify_mode.h"
#include "sheet/sample_choice.h"

namespace {

bool isModifying()
{
    return sheet.Modifying;
}

/// The mouse in Modify template mode; outside of it too where the program listens there.
bool isMouseFree()
{
    return sheet.KeysActive;
}

void enter(EditedBox box, int index)
{
    switch (box) {
    case EditedBox::Text1:
        Text1_GotFocus(index);
        break;
    case EditedBox::Text2:
        Text2_GotFocus(index);
        break;
    case EditedBox::Text4:
        Text4_GotFocus();
        break;
    default:
        Text5_GotFocus(index);
    }
}

void edit(EditedBox box, int index, const std::string& text, int caret)
{
    switch (box) {
    case EditedBox::none:
        break;
    case EditedBox::Text1:
        Text1_Edited(index, text, caret);
        break;
    case EditedBox::Text2:
        Text2_Edited(index, text, caret);
        break;
    case EditedBox::Text4:
        Text4_Edited(text, caret);
        break;
    case EditedBox::Text5:
        Text5_Edited(index, text, caret);
        break;
    }
}

void enterAnyBox(Session& s)
{
    constexpr EditedBox boxes[] = {EditedBox::Text1, EditedBox::Text2, EditedBox::Text4, EditedBox::Text5};
    const EditedBox box = s.chance.oneOf(boxes);
    const int index = box == EditedBox::Text5                        ? s.chance.between(1, infoItems)
                      : box == EditedBox::Text1 && s.chance.oneIn(3) ? 0
                                                                     : s.anySlot();
    frmMain.focus = box == EditedBox::Text4 ? MainFocus::Text4 : MainFocus::elsewhere;
    s.focused = {box, index};
    s.event([&] { enter(box, index); });
}

/// Types into the box that has the focus; its visit may have ended.
void type(Session& s)
{
    constexpr int keys[] = {'A', 50, 51, 222, 8};
    s.event([key = s.chance.oneOf(keys)] { Form_KeyDown(key, 0); });
    const std::string text = s.anyText();
    const int caret = s.caretIn(text);
    s.event([&] { edit(s.focused.box, s.focused.index, text, caret); });
}

/// The menu of a row is open: a target, or none, and the menu closes.
void moveRow(Session& s)
{
    const int layer = s.chance.below(3);
    s.fromMenu([layer] { openTargetMenu(layer); });
    const int target = s.chance.oneIn(2) ? s.anySlot() % keysPerLayer + 1 + layer * keysPerLayer : 0;
    if (target != 0 && frmMain.mnuMoveTo[target].enabled) {
        const auto before = sheet.Count;
        const int source = sheet.MoveSource;
        const std::size_t lines = sheet.ActionText.size();
        s.event([target] { mnuMoveTo_Click(target); });
        for (int sample = 1; sample <= sheet.SampleCount && sheet.ActionText.size() > lines; ++sample)
            require(sheet.Count(sample, target) == before(sample, source) && sheet.Count(sample, source) == 0,
                    "a row moves with its counts", sample);
    }
    s.event([layer] { targetMenuClosed(layer); });
}

template <class Press>
void pressRow(Session& s, Press press)
{
    bool menuOpens = false;
    s.event([&] { menuOpens = press(s.anySlot()); });
    if (menuOpens)
        moveRow(s);
}

} // namespace

std::vector<DayEvent> eventsOfEditing()
{
    return {
        {"enters a box", 150, Effect::none, isModifying, enterAnyBox},
        {"types", 300, Effect::edited, isModifying, type},
        {"leaves the box", 50, Effect::none, isModifying, [](Session& s) { s.leaveBox(); }},
        {"double click", 6, Effect::none, isMouseFree,
         [](Session& s) {
             if (sheet.Modifying)
                 s.event(s.chance.oneIn(2) ? Text2_DblClick : Text4_DblClick);
         }},
        {"Label1", 20, Effect::edited, [] { return isMouseFree() && frmMain.Label1[1].visible; },
         [](Session& s) { pressRow(s, Label1_Click); }},
        {"Label1(0)", 1, Effect::none, [] { return isMouseFree() && frmMain.Label1[0].visible; },
         [](Session& s) { s.event([] { Label1_Click(0); }); }},
        {"Text1 pressed", 8, Effect::edited, isMouseFree,
         [](Session& s) {
             pressRow(s, [right = s.chance.oneIn(2)](int slot) { return Text1_MouseDown(slot, right); });
         }},
        {"Text2 pressed", 8, Effect::edited, isMouseFree,
         [](Session& s) {
             pressRow(s, [right = s.chance.oneIn(2)](int slot) { return Text2_MouseDown(slot, right); });
         }},
        {"Label10", 3, Effect::none,
         [] { return isMouseFree() && frmMain.Label10[1].visible && frmMain.Label10[1].enabled; },
         [](Session& s) { s.event([item = s.chance.between(1, infoItems)] { Label10_Click(item); }); }},
        {"Command7", 10, Effect::none, [] { return frmMain.Command7[1].visible; },
         [](Session& s) { s.event([item = s.chance.between(1, infoItems)] { Command7_Click(item); }); }},
        {"types into the list", 20, Effect::none, isModifying,
         [](Session& s) {
             s.leaveBox();
             const std::string text = s.anyText();
             s.event([&] { Combo2_Change(text, s.caretIn(text)); });
         }},
    };
}
