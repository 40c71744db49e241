#pragma once

#include "platform/page.h"

/// The page as an SVG file: its true size, coordinates in millimetres to a thousandth, real text, a group
/// with id and title for each group of the page.
std::string svgText(const Page& page);

/// Where letters may come from, in order; the same for each way that a page leaves the program.
constexpr const char* pageLetters[] = {"Arial", "Liberation Sans", "Helvetica", "DejaVu Sans"};
