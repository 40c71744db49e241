#pragma once

#include <string>
#include <string_view>

/// Texts of the sheet are held as they are saved, in the single-byte code page Windows-1252, so that what the
/// user sees is what the file holds. These go between it and the UTF-16 of the screen.

std::u16string fromCodePage(std::string_view text);
/// A character that the code page lacks becomes "?".
std::string toCodePage(std::u16string_view text);

/// In UTF-8, for texts that leave the program in another way than in a data sheet.
std::string utf8FromCodePage(std::string_view text);

/// A path or another UTF-8 text in the code page; bytes that are no UTF-8 become "?".
std::string toCodePageFromUtf8(std::string_view text);
/// The bytes of a text file in the code page. A byte order mark is dropped. A file that is UTF-8 with at
/// least one character of several bytes, as spreadsheets write it, is converted; any other is taken as it is.
std::string fileTextInCodePage(std::string bytes);
