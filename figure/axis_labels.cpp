#include "figure/axis_labels.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

constexpr double slack = 1e-9; ///< of a step: what a quotient of decimals may miss a whole number by

std::vector<double> labelValues(double first, double last, double step)
{
    std::vector<double> values;
    const double from = std::ceil(first / step - slack);
    const double to = std::floor(last / step + slack);
    if (!(step > 0) || to - from > 10000)
        return values;
    for (double n = from; n <= to; ++n)
        values.push_back(n == 0 ? 0 : n * step);
    return values;
}

double labelStep(double first, double last, int most)
{
    const double span = last - first;
    if (!(span > 0))
        return 1;
    for (double power = std::pow(10, std::floor(std::log10(span / most)) - 1);; power *= 10)
        for (const double times : {1.0, 2.0, 5.0}) {
            const double step = times * power;
            if (std::floor(last / step + slack) - std::ceil(first / step - slack) + 1 <= most)
                return step;
        }
}

std::string labelText(double value, double step)
{
    int decimals = 0;
    for (double rest = std::abs(step); decimals < 6 && std::abs(rest - std::round(rest)) > 1e-6; ++decimals)
        rest *= 10;
    std::array<char, 64> digits{};
    char* const end = std::to_chars(digits.data(), digits.data() + digits.size(), std::abs(value),
                                    std::chars_format::fixed, decimals)
                          .ptr;
    return (value < 0 ? "\xE2\x88\x92" : "") + std::string(digits.data(), end);
}

double roundEnd(double value)
{
    if (!(value > 0))
        return 1;
    const double power = std::pow(10, std::floor(std::log10(value)));
    for (const double times : {1.0, 1.5, 2.0, 2.5, 3.0, 4.0, 5.0, 6.0, 7.0, 8.0})
        if (times * power >= value * (1 - slack))
            return times * power;
    return 10 * power;
}
