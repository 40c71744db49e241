#include "keys/key_editor.h"

#include "core/character_rule.h"
#include "core/forms.h"
#include "core/key_grid.h"
#include "core/main_screen.h"
#include "core/number_text.h"
#include "core/sheet_state.h"
#include "keys/delivered_keys.h"
#include "keys/key_commit.h"
#include "keys/key_settings.h"
#include "platform/ports.h"

#include <algorithm>

KeyCodeForm frmKeyCode;
static const Form form("frmKeyCode", frmKeyCode.visible, frmKeyCode_Command1_Click);

namespace {

void place(int box, int top, int left)
{
    for (auto* const map : {&frmKeyCode.Text1, &frmKeyCode.Text2, &frmKeyCode.Text3}) {
        (*map)[box].top = top;
        (*map)[box].left = left;
    }
}

/// Undo and Save stand beside the upper row of the grid, the layer keys below it: each of them within reach
/// of the hand that does not count.
void placeAsDesigned()
{
    constexpr int top = 60;
    constexpr int rowPitch = 345;
    constexpr int columnPitch = 540;
    constexpr int blockGap = 75;
    constexpr int leftOfGrid = 720;
    constexpr int layerKeys = top + 5 * rowPitch + 180;
    for (int row = 0; row < keyGridRows; ++row)
        for (int column = 0; column < keyGridColumns; ++column)
            place(keyGrid[row][column], top + row * rowPitch,
                  leftOfGrid + column * columnPitch + column / 3 * blockGap);
    place(rowUndo, top, 120);
    place(rowSave, top, 5790);
    place(rowShift1, layerKeys, 720);
    place(rowShift2, layerKeys, 2415);
    place(rowShift1Copy, layerKeys, 4110);
    place(lastKeyBox, layerKeys, 5790);
}

/// Shows every key where the key number map has put it.
void moveKeysToNumbers()
{
    for (int position = 1; position <= keysPerLayer; ++position) {
        const KeyBox& number = frmKeyCode.Text3[position];
        const int key = wholeNumber(number.text);
        if (key < 1 || key > keysPerLayer)
            continue;
        for (KeyBox* const box : {&frmKeyCode.Text1[key], &frmKeyCode.Text2[key]}) {
            box->top = number.top;
            box->left = number.left;
        }
    }
}

void moveSideways(int firstBox, int lastBox, int twips)
{
    for (int box = firstBox; box <= lastBox; ++box)
        for (auto* const map : {&frmKeyCode.Text1, &frmKeyCode.Text2, &frmKeyCode.Text3})
            (*map)[box].left += twips;
}

} // namespace

void showKeySettings(const KeySettingTable& table)
{
    KeyCodeForm& f = frmKeyCode;
    for (int row = 0; row <= rowSave; ++row) {
        if (row <= keysPerLayer)
            f.Text1[row].text = table[row].Definition;
        f.Text2[row].text = table[row].Code;
        f.Text3[row].text = table[row].Number;
    }
    f.Text2[lastKeyBox].text = f.Text2[rowShift2].text;
    f.Text3[lastKeyBox].text = "n/a";
    constexpr int rowOfFunction[] = {rowShift1, rowShift2, rowUndo, rowSave};
    for (int function = 0; function < 4; ++function)
        f.Text4[function].text = table[rowOfFunction[function]].Definition;
    moveKeysToNumbers();
}

void mnuKeyCodeReader_Click()
{
    frmKeyCode = KeyCodeForm();
    KeyCodeForm& f = frmKeyCode;
    std::copy_n(sheet.KeySetting.begin(), rowSave + 1, f.snapshot.begin());
    int box = rowShift1;
    for (const char* function : {"Shift-1", "Shift-2", "Shift-1", "Undo", "Save", "Shift-2"})
        f.Text1[box++].text = function;
    f.Option1[1].selected = true;
    placeAsDesigned();
    showKeySettings(knownKeySettings());
    frmKeyCode_SSTab1_Click(0);
    openAboveMain(f.visible);
}

void frmKeyCode_SSTab1_Click(int page)
{
    frmKeyCode.SSTab1 = page;
    frmKeyCode.Command5.visible = page == 2;
}

void frmKeyCode_Option1_Click(int side)
{
    frmKeyCode.Option1[side].selected = true;
    frmKeyCode.Option1[1 - side].selected = false;
    const int s = side == 0 ? 1 : -1;
    moveSideways(1, keysPerLayer, -600 * s);
    moveSideways(rowUndo, rowSave, 5055 * s);
    moveSideways(rowShift1, rowShift1Copy, 855 * s);
}

void frmKeyCode_Command2_Click()
{
    KeyCodeForm& f = frmKeyCode;
    for (int key = 1; key <= keysPerLayer; ++key) {
        if (f.SSTab1 == 2) {
            f.Text3[key].text.clear();
        } else {
            f.Text1[key].text.clear();
            f.Text2[key].text.clear();
        }
    }
    if (f.SSTab1 != 2)
        for (int function = 0; function < 4; ++function)
            f.Text4[function].text.clear();
}

void frmKeyCode_Command5_Click()
{
    for (int position = 1; position <= keysPerLayer; ++position)
        sheet.KeySetting[position].Number = frmKeyCode.Text3[position].text = decimalText(position);
    moveKeysToNumbers();
}

void frmKeyCode_DeliveredKeys_Click()
{
    for (auto* const map : {&frmKeyCode.Text1, &frmKeyCode.Text3})
        for (KeyBox& box : *map)
            box.red = false;
    for (KeyBox& box : frmKeyCode.Text4)
        box.red = false;
    showKeySettings(deliveredKeySettings());
}

void frmKeyCode_Text3_GotFocus(int position)
{
    KeyCodeForm& f = frmKeyCode;
    sheet.LastKeyDown = noKeyYet;
    f.savedText = f.Text3[position].text;
    f.Text3[position].text.clear();
    for (KeyBox& box : f.Text3)
        box.red = false;
}

void frmKeyCode_Text3_Edited(int position, std::string_view text, int /*caret*/)
{
    frmKeyCode.Text3[position].text = text;
}

void frmKeyCode_Text3_LostFocus(int position)
{
    std::string& text = frmKeyCode.Text3[position].text;
    if (text.empty()) {
        text = frmKeyCode.savedText;
    } else if (leadingNumber(text) < 1 || leadingNumber(text) > keysPerLayer) {
        text = frmKeyCode.savedText;
        ports.dialogs->ask("Counte key index must be between 1 and 45.", "Error", Buttons::ok,
                           Icon::exclamation);
    } else {
        text = decimalText(wholeNumber(text)); // the form in which equal ones are found
    }
    moveKeysToNumbers();
}

void closeKeyEditor()
{
    closeAboveMain(frmKeyCode.visible);
}
