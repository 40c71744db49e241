#pragma once

#include <cstdint>

struct Colour {
    std::uint8_t red = 0;
    std::uint8_t green = 0;
    std::uint8_t blue = 0;
    friend bool operator==(const Colour&, const Colour&) = default;
};

constexpr Colour RGB(std::uint8_t red, std::uint8_t green, std::uint8_t blue)
{
    return {red, green, blue};
}
