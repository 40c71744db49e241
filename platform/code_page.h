#pragma once

#include <string>
#include <string_view>

/// Texts of the sheet are held as they are saved, in the single-byte code page Windows-1252, so that what the
/// user sees is what the file holds. These go between it and the UTF-16 of the screen.

std::u16string fromCodePage(std::string_view text);
/// A character that the code page lacks becomes "?".
std::string toCodePage(std::u16string_view text);
