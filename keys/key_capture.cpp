#include "keys/key_capture.h"

#include "core/character_rule.h"
#include "core/number_text.h"
#include "core/sheet_state.h"
#include "keys/key_editor.h"
#include "keys/key_name.h"
#include "platform/code_page.h"
#include "platform/key_names.h"
#include "platform/ports.h"

#include <utility>
#include <vector>

namespace {

constexpr int digit3 = 51;
constexpr int f1Capture = 4;

/// Boxes of the key code map that a box of Text4 fills.
const std::vector<int>& codesOf(int function)
{
    static const std::vector<int> codes[] = {
        {rowShift1, rowShift1Copy}, {rowShift2}, {rowUndo}, {rowSave}, {28, 29, 30, 34, 35, 36, 40, 41, 42}};
    return codes[function];
}

void setCodes(int function, const std::string& code)
{
    for (const int box : codesOf(function))
        frmKeyCode.Text2[box].text = code;
    frmKeyCode.Text2[lastKeyBox].text = frmKeyCode.Text2[rowShift2].text;
}

/// A key that typed nothing gets its name when it comes up. Only the key that went down last names the box:
/// one that comes up after it (a Shift key held for a sign) is not the one whose code is kept.
void nameOnKeyUp(KeyBox& box, int keyCode)
{
    if (keyCode != sheet.LastKeyDown)
        return;
    const std::string name = specialKeyName(sheet.KeySetting, keyCode);
    if (!name.empty())
        box.text = name;
    else if (box.text.empty())
        box.text = keyName(keyCode);
}

/// Its place in the code page of the data sheets, or its own number if it has none there.
long long inCodePage(char32_t character)
{
    const std::string byte = toCodePage(std::u16string(1, static_cast<char16_t>(character)));
    return character < 0x10000 && byte != "?" ? static_cast<unsigned char>(byte.front())
                                              : static_cast<long long>(character);
}

void putBack(int key)
{
    frmKeyCode.Text1[key].text = frmKeyCode.savedDefinition;
    frmKeyCode.Text2[key].text = frmKeyCode.savedCode;
}

} // namespace

void frmKeyCode_Text1_GotFocus(int key)
{
    KeyCodeForm& f = frmKeyCode;
    sheet.LastKeyDown = noKeyYet;
    f.savedDefinition = f.Text1[key].text;
    f.savedCode = f.Text2[key].text;
    f.Text1[key].text.clear();
    for (KeyBox& box : f.Text1)
        box.red = false;
}

void frmKeyCode_Text1_KeyDown(int key, int keyCode)
{
    sheet.LastKeyDown = keyCode;
    frmKeyCode.Text1[key].text.clear();
    frmKeyCode.Text2[key].text = decimalText(keyCode);
}

void frmKeyCode_Text1_KeyPress(int key, char32_t character)
{
    const std::string name = plainKeyName(sheet.LastKeyDown, character);
    frmKeyCode.Label4.caption =
        decimalText(character < 0x80 ? static_cast<long long>(character) : inCodePage(character));
    if (name.empty())
        return;
    if (sheet.LastKeyDown == digit3 && character != '3') {
        putBack(key);
        sheet.LastKeyDown = noKeyYet;
        ports.dialogs->ask("Using double quotation mark causes fatal error. Please choose another key.",
                           "Are you an AZERTY keyboard user?", Buttons::ok, Icon::exclamation);
        return;
    }
    frmKeyCode.Text1[key].text = name;
}

void frmKeyCode_Text1_KeyUp(int key, int keyCode)
{
    nameOnKeyUp(frmKeyCode.Text1[key], keyCode);
}

void frmKeyCode_Text1_LostFocus(int key)
{
    if (frmKeyCode.Text1[key].text == " ") // left before the key came up
        nameOnKeyUp(frmKeyCode.Text1[key], sheet.LastKeyDown);
    if (frmKeyCode.Text1[key].text.empty())
        putBack(key);
}

int keyBehind(int key)
{
    const auto place = [](int of) {
        const KeyBox& box = frmKeyCode.Text1[of];
        return std::pair(box.top, box.left);
    };
    if (sheet.LastKeyDown == noKeyYet)
        return 0;
    int next = 0;
    for (int other = 1; other <= keysPerLayer; ++other)
        if (place(key) < place(other) && (next == 0 || place(other) < place(next)))
            next = other;
    return next;
}

int functionBehind(int function)
{
    constexpr int last = 3;
    return function < last && sheet.LastKeyDown != noKeyYet ? function + 1 : -1;
}

void frmKeyCode_Text4_GotFocus(int function)
{
    KeyCodeForm& f = frmKeyCode;
    sheet.LastKeyDown = noKeyYet;
    f.savedText = f.Text4[function].text;
    f.savedCode = f.Text2[codesOf(function).front()].text;
    f.Text4[function].text.clear();
    for (int i = 0; i < 4; ++i)
        f.Text4[i].red = false;
}

void frmKeyCode_Text4_KeyDown(int function, int keyCode)
{
    sheet.LastKeyDown = keyCode;
    if (function == f1Capture) {
        int code = keyCode;
        for (const int box : codesOf(function))
            frmKeyCode.Text2[box].text = decimalText(code++);
    } else {
        setCodes(function, decimalText(keyCode));
    }
    frmKeyCode.Text4[function].text.clear();
}

void frmKeyCode_Text4_KeyPress(int function, char32_t character)
{
    if (function != f1Capture) // stays empty: it has no key of its own
        frmKeyCode.Text4[function].text = plainKeyName(sheet.LastKeyDown, character);
}

void frmKeyCode_Text4_KeyUp(int function, int keyCode)
{
    if (function != f1Capture)
        nameOnKeyUp(frmKeyCode.Text4[function], keyCode);
}

void frmKeyCode_Text4_LostFocus(int function)
{
    if (frmKeyCode.Text4[function].text == " ")
        nameOnKeyUp(frmKeyCode.Text4[function], sheet.LastKeyDown);
    if (function == f1Capture || !frmKeyCode.Text4[function].text.empty())
        return;
    frmKeyCode.Text4[function].text = frmKeyCode.savedText;
    setCodes(function, frmKeyCode.savedCode);
}
