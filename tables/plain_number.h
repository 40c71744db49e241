#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

/// True if the whole text is a number in plain writing: a minus perhaps, digits, and perhaps the mark with
/// digits behind it. `decimalMark`: '.' alone, or ',' for a point or a comma.
bool isPlainNumber(std::string_view text, char decimalMark);

/// The count that a cell of a table holds; nothing if it holds none. Empty, "NA" and "-" are 0, "12.0" is 12.
/// Where a comma may be the decimal mark, three zeros behind a mark may as well be thousands, so "1.000" is
/// no count there.
std::optional<std::int32_t> countOfCell(std::string_view cell, char decimalMark);
