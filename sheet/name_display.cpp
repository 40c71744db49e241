#include "sheet/name_display.h"

#include "core/main_screen.h"
#include "core/taxon_name.h"
#include "sheet/focus_and_pointer.h"

#include <algorithm>
#include <string_view>

static bool isUpright(std::string_view name)
{
    return isFamily(name) || name == noText;
}

void ApplyItalics()
{
    const auto first = frmMain.Text1.begin() + 1;
    const auto last = frmMain.Text1.end();
    const bool anyUpright =
        std::any_of(first, last, [](const TextBox& name) { return isUpright(name.text); });
    for (auto name = first; name != last; ++name)
        name->italic = frmMain.mnuItalic.checked && anyUpright && !isUpright(name->text);
}

void mnuItalic_Click()
{
    frmMain.mnuItalic.checked = !frmMain.mnuItalic.checked;
    ApplyItalics();
    giveFocusBack();
}

void mnuFontSize_Click(int points)
{
    for (int size = 6; size <= 10; ++size)
        frmMain.mnuFontSize[size].checked = size == points;
    for (int slot = 1; slot <= taxonSlots; ++slot)
        frmMain.Text1[slot].fontSize = points;
    giveFocusBack();
}

static void showEnds(bool ofName)
{
    for (int slot = 1; slot <= taxonSlots; ++slot) {
        TextBox& name = frmMain.Text1[slot];
        name.showsEnd = ofName;
        name.caret = ofName ? static_cast<int>(name.text.size()) : 0;
    }
}

void mnuAlign_Click(int side)
{
    for (int i = 0; i < 2; ++i)
        frmMain.mnuAlign[i].checked = i == side;
    showEnds(side == 1);
    frmMain.focus = MainFocus::Text99;
}

void Command8_Click()
{
    const bool right = !frmMain.Text1[91].rightAligned;
    for (int slot = 1; slot <= taxonSlots; ++slot)
        frmMain.Text1[slot].rightAligned = right;
    showEnds(right);
    // On purpose "Right" is marked after either flip.
    frmMain.mnuAlign[0].checked = false;
    frmMain.mnuAlign[1].checked = true;
    frmMain.focus = MainFocus::Text99;
}
