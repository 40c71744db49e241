#include "core/number_text.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>

namespace {

bool isDigit(char c)
{
    return c >= '0' && c <= '9';
}

/// The number of a text that is nothing but a few digits, perhaps with a minus: nearly every text that is
/// parsed, and a key press parses hundreds of them.
bool isShortWhole(std::string_view text, std::int32_t& number)
{
    const bool negative = !text.empty() && text.front() == '-';
    if (negative)
        text.remove_prefix(1);
    if (text.empty() || text.size() > 9)
        return false;
    number = 0;
    for (const char c : text) {
        if (!isDigit(c))
            return false;
        number = number * 10 + (c - '0');
    }
    if (negative)
        number = -number;
    return true;
}

/// Length of the digits that `text` begins with.
std::size_t digits(std::string_view text)
{
    std::size_t length = 0;
    while (length < text.size() && isDigit(text[length]))
        ++length;
    return length;
}

} // namespace

double leadingNumber(std::string_view text)
{
    if (std::int32_t number = 0; isShortWhole(text, number))
        return number;
    while (!text.empty() && (text.front() == ' ' || text.front() == '\t'))
        text.remove_prefix(1);
    const bool negative = !text.empty() && text.front() == '-';
    if (!text.empty() && (text.front() == '-' || text.front() == '+'))
        text.remove_prefix(1);

    const std::size_t whole = digits(text);
    std::size_t length = whole;
    if (length < text.size() && text[length] == '.')
        length += 1 + digits(text.substr(length + 1));
    if (length == 0 || (whole == 0 && length == 1))
        return 0;

    double magnitude = 0;
    const auto parsed =
        std::from_chars(text.data(), text.data() + length, magnitude, std::chars_format::fixed);
    if (parsed.ec == std::errc::result_out_of_range)
        magnitude = whole > 300 ? std::numeric_limits<double>::max() : 0;
    return negative ? -magnitude : magnitude;
}

std::int32_t wholeNumber(std::string_view text)
{
    if (std::int32_t whole = 0; isShortWhole(text, whole))
        return whole;
    const double number = std::nearbyint(leadingNumber(text));
    constexpr double lowest = std::numeric_limits<std::int32_t>::min();
    constexpr double highest = std::numeric_limits<std::int32_t>::max();
    return static_cast<std::int32_t>(number < lowest ? lowest : number > highest ? highest : number);
}

std::int32_t within32Bits(std::int64_t number)
{
    return static_cast<std::int32_t>(std::clamp<std::int64_t>(
        number, std::numeric_limits<std::int32_t>::min(), std::numeric_limits<std::int32_t>::max()));
}

bool isWholeNumber(std::string_view text)
{
    return text == decimalText(wholeNumber(text));
}

std::string decimalText(long long number)
{
    char buffer[24];
    const auto written = std::to_chars(buffer, buffer + sizeof buffer, number);
    return std::string(buffer, written.ptr);
}

template <class Number>
static std::string shortestDecimal(Number number)
{
    char buffer[400]; // the largest double has 309 digits
    const auto written = std::to_chars(buffer, buffer + sizeof buffer, number, std::chars_format::fixed);
    return std::string(buffer, written.ptr);
}

std::string plainDecimal(double number)
{
    return shortestDecimal(number);
}

std::string plainDecimal(float number)
{
    return shortestDecimal(number);
}
