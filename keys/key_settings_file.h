#pragma once

#include "core/key_assignment.h"

#include <array>
#include <optional>
#include <string_view>

using KeySettingTable = std::array<KeySettingRow, keySettingRows>;

/// True if at least one counter key has a code. Without one no one can count, and no file was read.
bool hasCounterKey(const KeySettingTable& table);

/// Reads the text of a key settings file: 63 records of three fields, one record a line. Nothing if a record
/// is missing, has more or fewer fields, or if no counter key has a code. What stands behind the 63 records
/// is ignored.
std::optional<KeySettingTable> parseKeySettings(std::string_view fileText);

/// The text of such a file. No field may hold a double quotation mark.
std::string keySettingsText(const KeySettingTable& table);
