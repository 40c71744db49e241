#include "platform/code_page.h"

#include <algorithm>
#include <array>

/// What stands at 0x80 to 0x9F; all else is as in Unicode. The five places that the code page leaves empty
/// map to the control characters of the same number, so that no byte of a file is lost.
constexpr std::array<char16_t, 32> upperControls = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

std::u16string fromCodePage(std::string_view text)
{
    std::u16string result;
    result.reserve(text.size());
    for (const char c : text) {
        const auto byte = static_cast<unsigned char>(c);
        result += byte >= 0x80 && byte <= 0x9F ? upperControls[byte - 0x80] : char16_t{byte};
    }
    return result;
}

std::string toCodePage(std::u16string_view text)
{
    std::string result;
    result.reserve(text.size());
    for (const char16_t unit : text) {
        if (unit < 0x80) { // nearly all
            result += static_cast<char>(unit);
            continue;
        }
        const auto place = std::find(upperControls.begin(), upperControls.end(), unit);
        if (place != upperControls.end())
            result += static_cast<char>(0x80 + (place - upperControls.begin()));
        else if (unit > 0x9F && unit <= 0xFF)
            result += static_cast<char>(unit);
        else if (unit < 0xDC00 || unit > 0xDFFF) // the second half of a pair adds nothing
            result += '?';
    }
    return result;
}

namespace {

/// Reads one character of UTF-8 and takes it off the front; 0xFFFFFFFF and one byte if it is none.
char32_t takeUtf8(std::string_view& text)
{
    constexpr char32_t invalid = 0xFFFFFFFF;
    const auto byteAt = [&](std::size_t i) { return static_cast<unsigned char>(text[i]); };
    const unsigned char lead = byteAt(0);
    const std::size_t length = lead < 0x80       ? 1
                               : lead >> 5 == 6  ? 2
                               : lead >> 4 == 14 ? 3
                               : lead >> 3 == 30 ? 4
                                                 : 0;
    char32_t character = length == 1 ? lead : lead & (0x7F >> length);
    bool valid = length != 0 && length <= text.size();
    for (std::size_t i = 1; valid && i < length; ++i) {
        valid = byteAt(i) >> 6 == 2;
        character = character << 6 | (byteAt(i) & 0x3F);
    }
    constexpr char32_t lowest[] = {0, 0, 0x80, 0x800, 0x10000};
    valid = valid && character >= lowest[length] && character <= 0x10FFFF &&
            (character < 0xD800 || character > 0xDFFF);
    text.remove_prefix(valid ? length : 1);
    return valid ? character : invalid;
}

bool isMultiByteUtf8(std::string_view text)
{
    bool multiByte = false;
    while (!text.empty()) {
        const std::size_t before = text.size();
        if (takeUtf8(text) > 0x10FFFF)
            return false;
        multiByte = multiByte || before - text.size() > 1;
    }
    return multiByte;
}

} // namespace

std::string utf8FromCodePage(std::string_view text)
{
    std::string bytes;
    const auto add = [&bytes](int byte) { bytes += static_cast<char>(byte); };
    for (const char16_t unit : fromCodePage(text)) { // none of the code page lies beyond 0xFFFF
        if (unit < 0x80) {
            add(unit);
            continue;
        }
        if (unit < 0x800) {
            add(0xC0 | unit >> 6);
        } else {
            add(0xE0 | unit >> 12);
            add(0x80 | (unit >> 6 & 0x3F));
        }
        add(0x80 | (unit & 0x3F));
    }
    return bytes;
}

std::string toCodePageFromUtf8(std::string_view text)
{
    std::u16string wide;
    wide.reserve(text.size());
    while (!text.empty()) {
        const char32_t character = takeUtf8(text);
        wide += character <= 0xFFFF ? static_cast<char16_t>(character)
                                    : char16_t{0xFFFD}; // shown as "?" either way
    }
    return toCodePage(wide);
}

std::string fileTextInCodePage(std::string bytes)
{
    constexpr std::string_view mark = "\xEF\xBB\xBF";
    if (std::string_view(bytes).substr(0, mark.size()) == mark)
        bytes.erase(0, mark.size());
    const bool plain = std::all_of(bytes.begin(), bytes.end(), [](char c) { return c >= 0; });
    return plain || !isMultiByteUtf8(bytes) ? bytes : toCodePageFromUtf8(bytes);
}
