#pragma once

#include <array>

/// The designed places of the 45 cells of a page, in twips, by grid position 1 to 45: three blocks of three
/// columns, five rows. Position i is where key number i stands unless the key number map says otherwise.
struct CellGrid {
    std::array<int, 46> CellTop;
    std::array<int, 46> CellLeft;
};
const CellGrid& cellGrid();

constexpr int cellNameWidth = 1185; ///< width of name and count
constexpr int cellNameHeight = 345;
constexpr int cellCountHeight = 285;
constexpr int cellCountBelow = 300; ///< count below the top of the name
constexpr int cellIndexBelow = 615; ///< key index below the top of the name
constexpr int cellIndexInset = 15;

/// Grid position 1 to 45 of each key number 1 to 45 by the key number map. Of a number that is named twice
/// the later position holds; numbers that the map leaves out fill the positions that it leaves empty.
std::array<int, 46> positionOfNumber();

/// Gives each of the 135 cells its place: position i shows the key number that the key number map has put
/// there, on all three pages alike. A map that names a number twice or not at all hides no taxon. The
/// names of the keys follow.
void ArrangeTaxonCells();
