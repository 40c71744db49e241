#pragma once

/// The grid that a person sees on the keyboard: three blocks of three columns, five rows from top to bottom.
/// Holds the position, 1 to 45; position i is where key number i stands unless the key number map says
/// otherwise.
constexpr int keyGridRows = 5;
constexpr int keyGridColumns = 9;
constexpr int keyGrid[keyGridRows][keyGridColumns] = {
    {28, 29, 30, 34, 35, 36, 40, 41, 42}, //
    {31, 32, 33, 37, 38, 39, 43, 44, 45}, //
    {1, 2, 3, 10, 11, 12, 19, 20, 21},    //
    {4, 5, 6, 13, 14, 15, 22, 23, 24},    //
    {7, 8, 9, 16, 17, 18, 25, 26, 27},
};
