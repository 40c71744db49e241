#include "statistics/written_numbers.h"

#include "core/number_text.h"

#include <algorithm>
#include <charconv>
#include <cmath>

namespace {

std::string withDecimals(double number, int decimals)
{
    if (!std::isfinite(number))
        return {};
    char buffer[400]; // the largest double has 309 digits
    const auto written =
        std::to_chars(buffer, buffer + sizeof buffer, number, std::chars_format::fixed, decimals);
    std::string text(buffer, written.ptr);
    const bool isZero = text.find_first_not_of("-0.") == std::string::npos;
    return isZero && text.front() == '-' ? text.substr(1) : text;
}

std::string withCommas(std::string text)
{
    const std::size_t first = text.find_first_of("0123456789");
    std::size_t at = std::min(text.find('.'), text.size());
    while (first != std::string::npos && at > first + 3) {
        at -= 3;
        text.insert(at, 1, ',');
    }
    return text;
}

/// Rounded to so many significant digits, halves to even.
double rounded(double number, int digits)
{
    char buffer[32];
    const auto written =
        std::to_chars(buffer, buffer + sizeof buffer, number, std::chars_format::scientific, digits - 1);
    double result = 0;
    std::from_chars(buffer, written.ptr, result);
    return result;
}

} // namespace

std::string oneDecimal(double number)
{
    return withDecimals(number, 1);
}

std::string threeDigits(double number)
{
    if (!std::isfinite(number))
        return {};
    if (number == 0)
        return "0";
    const double shown = rounded(number, 3);
    const int magnitude = static_cast<int>(std::floor(std::log10(std::abs(shown))));
    return withCommas(withDecimals(shown, std::max(0, 2 - magnitude)));
}

std::string withThousands(double whole)
{
    return withCommas(withDecimals(whole, 0));
}

std::string tenDigits(double number)
{
    return std::isfinite(number) ? plainDecimal(rounded(number, 10) + 0.0) : std::string();
}
