#include "sheet/key_names.h"

#include "core/built_in_keys.h"
#include "core/main_screen.h"
#include "core/number_text.h"
#include "core/sheet_state.h"
#include "core/taxon_name.h"
#include "platform/key_names.h"
#include "sheet/focus_and_pointer.h"

KeyNames keyNames;

KeyNames::KeyNames()
{
    mnuKeyNames.checked = true;
}

std::string keyDefinition(int row)
{
    if (sheet.UseKeySettings)
        return sheet.KeySetting[row].Definition;
    switch (row) {
    case rowShift1:
    case rowShift1Copy:
        return keyName(builtInShift1);
    case rowShift2:
        return keyName(builtInShift2);
    case rowUndo:
        return keyName(builtInMinus);
    case rowSave: // of the settings also then, if they could be read
        return sheet.KeySetting[row].Definition;
    default:
        return keyName(builtInKeyCode(row));
    }
}

int keyCodeOf(int keyNumber)
{
    if (!sheet.UseKeySettings)
        return builtInKeyCode(keyNumber);
    const int code = wholeNumber(sheet.KeySetting[keyNumber].Code);
    for (int later = keyNumber + 1; later <= rowUndo; ++later)
        if (wholeNumber(sheet.KeySetting[later].Code) == code)
            return 0;
    return code;
}

void nameKeys()
{
    std::array<std::string, keysPerLayer + 1> names;
    for (int number = 1; number <= keysPerLayer; ++number)
        if (const int code = keyCodeOf(number); code != 0) {
            const std::string defined = keyDefinition(number);
            names[number] = defined.empty() ? keyName(code) : defined;
        }
    if (names == keyNames.ofNumber)
        return;
    keyNames.ofNumber = names;
    ++keyNames.revision;
}

std::string keyOfCell(int slot)
{
    const std::string& key = keyNames.ofNumber[(slot - 1) % keysPerLayer + 1];
    if (key.empty())
        return key;
    constexpr const char* held[] = {"", " with Shift-1", " with Shift-1 and Shift-2"};
    return key + held[(slot - 1) / keysPerLayer];
}

std::string tipOfCell(int slot)
{
    const std::string& name = frmMain.Text1[slot].text;
    const std::string key = keyOfCell(slot);
    if (name == noText || name.empty())
        return key.empty() ? "" : "Key " + key;
    return key.empty() ? name : name + ", key " + key;
}

void mnuKeyNames_Click()
{
    keyNames.mnuKeyNames.checked = !keyNames.mnuKeyNames.checked;
    giveFocusBack();
}
