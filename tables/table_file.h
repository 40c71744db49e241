#pragma once

#include "tables/table_encoding.h"

#include <optional>
#include <string>
#include <string_view>

/// A file that the user has chosen for what stands in it.
struct TableFile {
    std::string name; ///< without its folder, in the code page
    DecodedTable decoded;
};

/// Nothing if the user cancels, and after a message if the file cannot be read or is no text.
std::optional<TableFile> chooseTable(std::string_view dialogTitle);

void tellTableFault(const std::string& text);
