#pragma once

#include <optional>
#include <string_view>

enum class PictureFormat { svg, pdf, png, tiff };

/// By the ending of a path: ".svg", ".pdf", ".png", ".tif" or ".tiff", in letters of any size.
std::optional<PictureFormat> pictureFormatOf(std::string_view path);
