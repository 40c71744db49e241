#include "keys/key_commit.h"

#include "core/cue.h"
#include "core/hooks.h"
#include "core/sheet_state.h"
#include "keys/key_editor.h"
#include "keys/key_settings.h"
#include "platform/ports.h"

#include <algorithm>

namespace {

void refuse(const char* message, int page, KeyBox& one, KeyBox& other)
{
    playCue(Cue::SoundError);
    frmKeyCode_SSTab1_Click(page);
    one.red = other.red = true;
    ports.dialogs->ask(message, "Error", Buttons::ok, Icon::exclamation);
}

/// Empty texts are equal too.
bool isAnyKeyTwice()
{
    KeyCodeForm& f = frmKeyCode;
    for (int i = 1; i <= keysPerLayer; ++i)
        for (int j = 1; j < i; ++j) {
            if (f.Text1[i].text == f.Text1[j].text || f.Text2[i].text == f.Text2[j].text) {
                refuse("Same key code is being used for more than one taxon.", 0, f.Text1[i], f.Text1[j]);
                return true;
            }
            if (f.Text3[i].text == f.Text3[j].text) {
                refuse("Same Ergodex key is being used for more than one place.", 2, f.Text3[i], f.Text3[j]);
                return true;
            }
        }
    for (int i = 0; i < 4; ++i)
        for (int j = 0; j < i; ++j)
            if (f.Text4[i].text == f.Text4[j].text) {
                refuse("Same functional key is being used for more than one place.", 1, f.Text4[i],
                       f.Text4[j]);
                return true;
            }
    return false;
}

/// The settings as the boxes have them; rows without a box are carried.
KeySettingTable settingsOfBoxes()
{
    KeyCodeForm& f = frmKeyCode;
    KeySettingTable table = knownKeySettings();
    for (int row = 1; row < keySettingRows; ++row) {
        f.ProgressBar1.value = row;
        if (row <= keysPerLayer)
            table[row].Definition = f.Text1[row].text;
        if (row <= rowSave) {
            table[row].Code = f.Text2[row].text;
            table[row].Number = f.Text3[row].text;
        }
    }
    table[rowShift1].Definition = table[rowShift1Copy].Definition = f.Text4[0].text;
    table[rowShift1Copy].Code = table[rowShift1].Code; // also if a file made by hand had another one
    table[rowShift2].Definition = f.Text4[1].text;
    table[rowUndo].Definition = f.Text4[2].text;
    table[rowSave].Definition = f.Text4[3].text;
    return table;
}

} // namespace

void frmKeyCode_Command4_Click()
{
    frmKeyCode.ProgressBar1 = {true, 0, keySettingRows - 1};
    if (isAnyKeyTwice()) {
        frmKeyCode.ProgressBar1 = ProgressBar();
        return;
    }
    const KeySettingTable table = settingsOfBoxes();
    frmKeyCode.ProgressBar1 = ProgressBar();
    if (WriteKeySettings(table, true))
        closeKeyEditor();
}

void frmKeyCode_Command1_Click()
{
    std::copy_n(frmKeyCode.snapshot.begin(), rowSave + 1, sheet.KeySetting.begin());
    showKeySettings(sheet.KeySetting);
    hooks.ArrangeTaxonCells();
    closeKeyEditor();
}

void CheckDouble()
{
    const KeyCodeForm& f = frmKeyCode;
    for (int i = 1; i <= keysPerLayer; ++i)
        for (int j = 1; j <= i; ++j)
            if (f.Text1[i].text == f.Text1[j].text || f.Text2[i].text == f.Text2[j].text ||
                f.Text3[i].text == f.Text1[j].text)
                return;
}
