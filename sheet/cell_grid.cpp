#include "sheet/cell_grid.h"

#include "core/key_grid.h"
#include "core/main_screen.h"
#include "core/number_text.h"
#include "core/sheet_state.h"
#include "core/user_event.h"
#include "sheet/key_names.h"

#include <algorithm>

static CellGrid designedGrid()
{
    constexpr int left[keyGridColumns] = {240, 1560, 2880, 4560, 5880, 7200, 8880, 10200, 11520};
    constexpr int top[keyGridRows] = {360, 1200, 2140, 3000, 3840};
    CellGrid grid{};
    for (int row = 0; row < keyGridRows; ++row)
        for (int column = 0; column < keyGridColumns; ++column) {
            grid.CellTop[keyGrid[row][column]] = top[row];
            grid.CellLeft[keyGrid[row][column]] = left[column];
        }
    return grid;
}

const CellGrid& cellGrid()
{
    static const CellGrid grid = designedGrid();
    return grid;
}

std::array<int, 46> positionOfNumber()
{
    std::array<int, 46> position{};
    for (int i = 1; i <= keysPerLayer; ++i) {
        const int number = wholeNumber(sheet.KeySetting[i].Number);
        if (number >= 1 && number <= keysPerLayer)
            position[number] = i;
    }
    for (int number = 1, empty = 0; number <= keysPerLayer; ++number) {
        if (position[number] != 0)
            continue;
        do
            ++empty;
        while (std::find(position.begin(), position.end(), empty) != position.end());
        position[number] = empty;
    }
    return position;
}

void ArrangeTaxonCells()
{
    const CellGrid& grid = cellGrid();
    const std::array<int, 46> position = positionOfNumber();
    for (int slot = 1; slot <= taxonSlots; ++slot) {
        const int i = position[(slot - 1) % keysPerLayer + 1];
        const int top = grid.CellTop[i];
        const int left = grid.CellLeft[i];
        frmMain.Text1[slot].top = top;
        frmMain.Text1[slot].left = left;
        frmMain.Text2[slot].top = top + cellCountBelow;
        frmMain.Text2[slot].left = left;
        frmMain.Label1[slot].top = top + cellIndexBelow;
        frmMain.Label1[slot].left = left + cellIndexInset;
    }
    atEndOfUserEvent(nameKeys); // whether the settings are in force is settled behind this
}
