#pragma once

#include "core/sheet_size.h"

#include <array>
#include <string>

/// One row of the key settings.
struct KeySettingRow {
    std::string Definition; ///< what the user sees for the key, such as "[F1]" or "q"
    std::string Code;       ///< decimal Windows virtual-key code
    std::string Number;     ///< rows 1 to 45: the key number shown at this position of the grid
};

/// Rows of the key settings with a function of their own; rows 1 to 45 are the counter keys.
enum KeySettingRows {
    rowShift1 = 46,
    rowShift2 = 47,
    rowShift1Copy = 48,
    rowUndo = 49,
    rowSave = 50,
    rowFirstReference = 51, ///< to 62: twelve named keys that tell one keyboard from another
    keySettingRows = 63
};

/// Which key is which. The codes hold for the built-in map and are replaced by the settings file.
struct KeyAssignment {
    std::array<KeySettingRow, keySettingRows> KeySetting;
    int Shift1Key = 16;
    int Shift2Key = 17;
    int MinusKey = 8;
    bool UseKeySettings = false;  ///< false: the built-in key map is in force
    bool KeysInitialised = false; ///< false: the keyboard has not been identified yet
};
