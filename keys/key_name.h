#pragma once

#include "keys/key_settings_file.h"

#include <string>

/// What the user sees for a key.

/// Of a special key, as in "[Space]" or "[F7]": the names are those of the reference keys, and a function key
/// is known by its distance from [F1]. Empty for any other key.
std::string specialKeyName(const KeySettingTable& table, int keyCode);

/// Of a key that typed a character: the character. One that the sheets' code page lacks (a Greek letter, say)
/// gives way to the name of the key's code; the double quotation mark, which the settings file cannot hold,
/// to an apostrophe. Empty for a control character.
std::string plainKeyName(int keyCode, char32_t character);
