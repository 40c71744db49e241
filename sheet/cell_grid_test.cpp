#include "sheet/cell_grid.h"

#include "core/program_test.h"

#include <set>

class Cells : public ProgramTest {
protected:
    static std::pair<int, int> place(int slot) { return {frmMain.Text1[slot].top, frmMain.Text1[slot].left}; }
};

TEST_F(Cells, standInThreeBlocksOfThreeColumnsOnAllPages)
{
    ArrangeTaxonCells(); // without key settings
    const struct {
        int slot, top, left;
    } cases[] = {{28, 360, 240},   {42, 360, 11520}, {37, 1200, 4560}, {4, 3000, 240},     {21, 2140, 11520},
                 {14, 3000, 5880}, {9, 3840, 2880},  {73, 360, 240},   {135, 1200, 11520}, {91, 2140, 240}};
    for (const auto& c : cases)
        EXPECT_EQ(std::pair(c.top, c.left), place(c.slot)) << c.slot;
    EXPECT_TRUE(frmMain.Text2[28].top == 660 && frmMain.Text2[28].left == 240);
    EXPECT_TRUE(frmMain.Label1[28].top == 975 && frmMain.Label1[28].left == 255);
}

TEST_F(Cells, followTheKeyNumberMapAndNeverHideOneAnother)
{
    for (const auto numberAt : {+[](int) { return 7; }, +[](int i) { return i / 2; },
                                +[](int i) { return 3 * i - 60; }, +[](int i) { return 46 - i; }}) {
        for (int i = 1; i <= keysPerLayer; ++i)
            sheet.KeySetting[i].Number = decimalText(numberAt(i));
        ArrangeTaxonCells();
        for (int page = 0; page < 3; ++page) {
            std::set<std::pair<int, int>> places;
            for (int k = 1; k <= keysPerLayer; ++k)
                places.insert(place(45 * page + k));
            EXPECT_EQ(45U, places.size());
        }
    }
    for (const int slot : {45, 90, 135}) // backwards
        EXPECT_EQ(std::pair(2140, 240), place(slot));
}
