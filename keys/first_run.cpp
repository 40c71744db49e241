#include "keys/first_run.h"

#include "core/forms.h"
#include "core/hooks.h"
#include "core/main_screen.h"
#include "core/number_text.h"
#include "core/sheet_state.h"
#include "core/start_up.h"
#include "keys/key_settings.h"
#include "platform/ports.h"

InitialForm frmInitial;
static const Form form("frmInitial", frmInitial.visible, closeInitial);

namespace {

void load()
{
    frmInitial = InitialForm();
    InitialForm& f = frmInitial;
    int key = 0;
    for (const char* name : {"[Shift]:", "[Ctrl]:", "[Delete]:", "[BkSp]:", "[Esc]:", "[Enter]:", "[Space]:",
                             "[F1]:", "[Left]:", "[Up]:", "[Right]:", "[Down]:"})
        f.Label4[key++].caption = name;
    f.FirstRun = isKeyboardIdentified() ? 1 : 0;
    if (f.FirstRun == 1) {
        for (int box = 0; box < referenceKeys; ++box)
            f.Text1[box].text = sheet.KeySetting[rowFirstReference + box].Code;
    } else { // box after box is enabled by the key before it
        for (int box = 1; box < referenceKeys; ++box)
            f.Text1[box].enabled = f.Label4[box].enabled = false;
        f.Command1.enabled = false;
        f.focus = 0;
    }
    openAboveMain(f.visible);
}

bool isKeyCode(const std::string& text)
{
    return isWholeNumber(text) && wholeNumber(text) != 0;
}

/// False if a box holds no code.
bool areAllFilled()
{
    bool filled = true;
    for (TextBox& box : frmInitial.Text1) {
        if (!box.text.empty() && box.text.front() == ' ')
            box.text.erase(0, 1);
        filled = filled && isKeyCode(box.text);
    }
    return filled;
}

} // namespace

void ShowInitial()
{
    frmMain.visible = false;
    load();
}

void mnuInitial_Click()
{
    load();
}

void frmInitial_Text1_GotFocus(int box)
{
    frmInitial.focus = box;
    frmInitial.Text1[box].text.clear();
}

void frmInitial_Command1_GotFocus()
{
    frmInitial.focus = referenceKeys;
}

void frmInitial_Text1_KeyDown(int box, int keyCode)
{
    InitialForm& f = frmInitial;
    f.Text1[box].text = decimalText(keyCode);
    if (box == referenceKeys - 1) {
        f.Command1.enabled = true;
        f.focus = referenceKeys;
    } else if (f.Text1[box + 1].text.empty()) {
        f.Text1[box + 1].enabled = f.Label4[box + 1].enabled = true;
        f.focus = box + 1;
    } else if (f.Command1.enabled) {
        f.focus = referenceKeys;
    }
}

void frmInitial_Command1_Click()
{
    if (!areAllFilled()) {
        ports.dialogs->ask("Please fill all boxes.", "Error", Buttons::ok, Icon::exclamation);
        return;
    }
    KeySettingTable table = knownKeySettings();
    for (int box = 0; box < referenceKeys; ++box)
        table[rowFirstReference + box].Code = decimalText(wholeNumber(frmInitial.Text1[box].text));
    // Where the built-in map counts although a file was read, it goes on counting.
    if (!WriteKeySettings(table, sheet.UseKeySettings || !hasCounterKey(sheet.KeySetting)))
        return;
    sheet.KeysInitialised = true;
    const bool firstRun = frmInitial.FirstRun == 0;
    frmInitial.FirstRun = 1;
    closeInitial();
    if (firstRun)
        hooks.ShowFirstRunChoice();
}

void closeInitial()
{
    closeAboveMain(frmInitial.visible);
}
