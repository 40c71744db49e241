#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

/// A baseline TIFF 6.0 image, RGB of 8 bits, packed row by row. `row` fills the 3 x width bytes of one row,
/// from the first to the last, each once.
std::string tiffImage(int width, int height, int dotsPerInch,
                      const std::function<void(int row, std::uint8_t* rgb)>& row);
