#include "keys/delivered_keys.h"

#include "core/built_in_keys.h"
#include "core/number_text.h"
#include "platform/key_names.h"

static KeySettingTable delivered()
{
    KeySettingTable table;
    table[0] = {"Definition", "Code", "Number"};
    for (int number = 1; number <= keysPerLayer; ++number) {
        const int code = builtInKeyCode(number);
        table[number] = {keyName(code), decimalText(code), decimalText(number)};
    }
    const auto functionKey = [](int code) { return KeySettingRow{keyName(code), decimalText(code), "n/a"}; };
    table[rowShift1] = table[rowShift1Copy] = functionKey(186);
    table[rowShift2] = functionKey(80);
    table[rowUndo] = functionKey(8);
    table[rowSave] = functionKey(187);
    int row = rowFirstReference;
    for (const char* name :
         {"Shift", "Ctrl", "Delete", "BkSp", "Esc", "Enter", "Space", "F1", "Left", "Up", "Right", "Down"})
        table[row++] = {name, "999", "n/a"};
    return table;
}

const KeySettingTable& deliveredKeySettings()
{
    static const KeySettingTable table = delivered();
    return table;
}
