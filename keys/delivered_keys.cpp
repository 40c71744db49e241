#include "keys/delivered_keys.h"

#include "core/built_in_keys.h"
#include "core/number_text.h"
#include "keys/key_name.h"

static std::string nameOfBuiltInKey(int code)
{
    if (code == 188)
        return ",";
    if (code == 190)
        return ".";
    return code >= 112 && code <= 120 ? "[F" + decimalText(code - 111) + "]" : keyNameByCode(code);
}

static KeySettingTable delivered()
{
    KeySettingTable table;
    table[0] = {"Definition", "Code", "Number"};
    for (int code = 1; code < 256; ++code)
        if (const int number = builtInKeyNumber(code))
            table[number] = {nameOfBuiltInKey(code), decimalText(code), decimalText(number)};
    table[rowShift1] = table[rowShift1Copy] = {";", "186", "n/a"};
    table[rowShift2] = {"p", "80", "n/a"};
    table[rowUndo] = {"[BkSp]", "8", "n/a"};
    table[rowSave] = {"=", "187", "n/a"};
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
