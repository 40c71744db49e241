#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// A line of texts that proves itself: its last field is the checksum of all before it, so a line that was
/// cut short or damaged is known. Texts may hold any bytes; the line is plain ASCII in quotation marks and
/// ends with CR LF. `before`: the checksum of what the line belongs to, so that it proves nothing elsewhere.

std::string provedLine(const std::vector<std::string>& fields, std::uint64_t before);
/// The fields of a line, with or without its line end; nothing if it does not prove itself.
std::optional<std::vector<std::string>> fieldsOfProvedLine(std::string_view line, std::uint64_t before);

/// A whole number that is not negative; nothing for any other text.
std::optional<std::uint64_t> wholeField(const std::string& field);
