#pragma once

#include "platform/colour.h"

constexpr Colour plainRow = RGB(255, 255, 255);
constexpr Colour countedRow = RGB(255, 255, 110);
constexpr Colour takenBackRow = RGB(255, 255, 135); ///< also of a row that was moved

/// Makes `slot` the one pale row of the sheet; 0 leaves none pale and keeps the row's number.
void highlight(int slot, Colour colour);
