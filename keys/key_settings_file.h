#pragma once

#include "core/sheet_state_type.h"

#include <array>
#include <optional>
#include <string_view>

using KeySettingTable = std::array<KeySettingRow, keySettingRows>;

/// Reads the text of a key settings file: 63 records of three fields, one record a line. Nothing if a record
/// is missing, has more or fewer fields, or if no counter key has a code, since no one can count with such a
/// table. What stands behind the 63 records is ignored.
std::optional<KeySettingTable> parseKeySettings(std::string_view fileText);
