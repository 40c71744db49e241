#pragma once

#include <string>

/// The text of a table in the code page of the sheets.
struct DecodedTable {
    std::string text;
    const char* encoding = ""; ///< for people to read: "UTF-8", "UTF-16", "Windows-1252"
    int replaced = 0;          ///< characters that the code page lacks; "?" stands for each
};

/// UTF-16 is told by its mark; what is no UTF-8 is taken as Windows-1252.
DecodedTable decodeTable(std::string bytes);
