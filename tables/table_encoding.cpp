#include "tables/table_encoding.h"

#include "platform/code_page.h"

#include <algorithm>

namespace {

/// A replaced character is told from a question mark by the number of those that there were.
template <class Text>
int questionMarks(const Text& text)
{
    return static_cast<int>(std::count(text.begin(), text.end(), typename Text::value_type{'?'}));
}

DecodedTable decodeUtf16(const std::string& bytes, bool lowByteFirst)
{
    std::u16string units;
    units.reserve(bytes.size() / 2);
    for (std::size_t i = 2; i + 1 < bytes.size(); i += 2) {
        const auto first = static_cast<unsigned char>(bytes[i]);
        const auto second = static_cast<unsigned char>(bytes[i + 1]);
        units += static_cast<char16_t>(lowByteFirst ? second << 8 | first : first << 8 | second);
    }
    std::string text = toCodePage(units);
    const int replaced = questionMarks(text) - questionMarks(units);
    return {std::move(text), "UTF-16", replaced};
}

} // namespace

DecodedTable decodeTable(std::string bytes)
{
    const std::string_view start = std::string_view(bytes).substr(0, 2);
    if (start == "\xFF\xFE" || start == "\xFE\xFF")
        return decodeUtf16(bytes, start == "\xFF\xFE");
    const auto isPlain = [](char c) { return c >= 0; };
    const bool plain = std::all_of(bytes.begin(), bytes.end(), isPlain);
    if (plain)
        return {std::move(bytes), "UTF-8", 0};
    const int before = questionMarks(bytes);
    std::string text = fileTextInCodePage(bytes);
    const bool kept = text == bytes; // nothing was converted
    return {text, kept ? "Windows-1252" : "UTF-8", questionMarks(text) - before};
}
