#include "sheet/key_names.h"

#include "core/program_test.h"
#include "sheet/cell_grid.h"

class KeyNamesTest : public ProgramTest {
protected:
    KeyNamesTest() { keyNames = {}; }

    static void useSettings()
    {
        for (int row = 1; row <= keysPerLayer; ++row)
            sheet.KeySetting[row] = {"k" + decimalText(row), decimalText(100 + row), decimalText(row)};
        for (const auto& [row, code] :
             {std::pair(rowShift1, 1), {rowShift2, 2}, {rowShift1Copy, 1}, {rowUndo, 3}})
            sheet.KeySetting[row].Code = decimalText(code);
        sheet.UseKeySettings = true;
    }
    /// As a change of the settings does it: what is in force is known at the end of the event.
    static void arrange()
    {
        const UserEvent event;
        ArrangeTaxonCells();
        sheet.UseKeySettings = true;
    }
};

TEST_F(KeyNamesTest, areThoseOfTheMapInForceOnEachLayer)
{
    ArrangeTaxonCells();
    EXPECT_EQ(keyOfCell(1), "q");
    EXPECT_EQ(keyOfCell(46), "q with Shift-1");
    EXPECT_EQ(keyOfCell(118), "[F1] with Shift-1 and Shift-2");
    const int before = keyNames.revision;
    useSettings();
    sheet.UseKeySettings = false;
    arrange();
    EXPECT_EQ(keyOfCell(135), "k45 with Shift-1 and Shift-2");
    EXPECT_GT(keyNames.revision, before);
    const int after = keyNames.revision;
    ArrangeTaxonCells();
    EXPECT_EQ(keyNames.revision, after) << "nothing is shown anew for nothing";
}

TEST_F(KeyNamesTest, sayWhichPressCountsTheCell)
{
    useSettings();
    sheet.KeySetting[5].Code = "109";       // counts key number 9
    sheet.KeySetting[6].Code = "1";         // Shift-1 counts nothing
    sheet.KeySetting[7] = {"", "112", "7"}; // [F1], by its code; key number 12 has another one now
    sheet.KeySetting[12].Code = "0";
    ArrangeTaxonCells();
    EXPECT_TRUE(keyOfCell(5).empty() && keyOfCell(50).empty());
    EXPECT_TRUE(keyOfCell(6).empty());
    EXPECT_TRUE(keyOfCell(12).empty());
    EXPECT_EQ(keyOfCell(9), "k9");
    EXPECT_EQ(keyOfCell(7), "[F1]");
    for (int number = 1; number <= keysPerLayer; ++number)
        if (const int code = keyCodeOf(number); code != 0) {
            tap(code);
            EXPECT_EQ(shown(number), 1) << number;
        } else {
            EXPECT_EQ(shown(number), 0) << number;
        }
}

TEST_F(KeyNamesTest, standInTheTipBehindTheTaxon)
{
    ArrangeTaxonCells();
    frmMain.Text1[46].text = "Pinus";
    EXPECT_EQ(tipOfCell(46), "Pinus, key q with Shift-1");
    EXPECT_EQ(tipOfCell(1), "Key q");
    useSettings();
    sheet.KeySetting[1].Code = "102";
    ArrangeTaxonCells();
    EXPECT_EQ(tipOfCell(46), "Pinus");
    EXPECT_EQ(tipOfCell(1), "");
}
