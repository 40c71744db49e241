#include "tables/plain_number.h"

#include <charconv>

namespace {

/// Length of the digits that `text` begins with.
std::size_t digits(std::string_view text)
{
    std::size_t length = 0;
    while (length < text.size() && text[length] >= '0' && text[length] <= '9')
        ++length;
    return length;
}

bool isMark(char c, char decimalMark)
{
    return c == '.' || (c == ',' && decimalMark == ',');
}

} // namespace

bool isPlainNumber(std::string_view text, char decimalMark)
{
    if (!text.empty() && text.front() == '-')
        text.remove_prefix(1);
    const std::size_t whole = digits(text);
    if (whole == 0)
        return false;
    text.remove_prefix(whole);
    if (text.empty())
        return true;
    return isMark(text.front(), decimalMark) && text.size() > 1 && digits(text.substr(1)) + 1 == text.size();
}

std::optional<std::int32_t> countOfCell(std::string_view cell, char decimalMark)
{
    if (cell.empty() || cell == "NA" || cell == "-")
        return 0;
    const std::size_t whole = digits(cell);
    std::int32_t count = 0;
    if (whole == 0 || std::from_chars(cell.data(), cell.data() + whole, count).ec != std::errc())
        return std::nullopt;
    if (whole == cell.size())
        return count;
    const std::string_view zeros = cell.substr(whole + 1);
    const bool maybeThousands = decimalMark == ',' && zeros.size() == 3;
    if (!isMark(cell[whole], decimalMark) || zeros.empty() || maybeThousands ||
        zeros.find_first_not_of('0') != std::string_view::npos)
        return std::nullopt;
    return count;
}
