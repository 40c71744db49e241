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
        const auto place = std::find(upperControls.begin(), upperControls.end(), unit);
        if (place != upperControls.end())
            result += static_cast<char>(0x80 + (place - upperControls.begin()));
        else if (unit < 0x80 || (unit > 0x9F && unit <= 0xFF))
            result += static_cast<char>(unit);
        else if (unit < 0xDC00 || unit > 0xDFFF) // the second half of a pair adds nothing
            result += '?';
    }
    return result;
}
