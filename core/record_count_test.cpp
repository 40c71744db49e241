#include "core/program_test.h"
#include "core/undo.h"

class RecordedCount : public ProgramTest {
protected:
    /// A keyboard of its own: key number k has the code 150 + k.
    static void useKeySettings()
    {
        for (int k = 1; k <= keysPerLayer; ++k)
            sheet.KeySetting[k].Code = decimalText(150 + k);
        sheet.KeySetting[rowShift1].Code = decimalText(shift1);
        sheet.KeySetting[rowShift2].Code = decimalText(shift2);
        sheet.KeySetting[rowUndo].Code = decimalText(undoKey);
        sheet.UseKeySettings = true;
    }
};

TEST_F(RecordedCount, standsInAllThreeFormsOfTheLog)
{
    frmMain.Text7.text = "(Start)";
    frmMain.Text1[10].text = "Quercus-D";
    tap('R');
    clock.moment = {"16/11/2026", 0, 5, 59, 9};
    tapWith(undoKey, 'R');
    const std::vector<std::string> lines = {"10: Quercus-D", "(Amend) 10: Quercus-D"};
    EXPECT_EQ("(Start)\r\n" + lines[0] + "\r\n" + lines[1], frmMain.Text7.text);
    EXPECT_EQ(lines, frmMain.Combo1.items);
    EXPECT_EQ(lines[1], frmMain.Combo1.text);
    EXPECT_EQ((std::vector<std::string>{"Created: )", lines[0], lines[1]}), sheet.ActionText);
    EXPECT_EQ((std::vector<std::string>{"", "15/11/2026_14:05:09:27", "16/11/2026_00:05:59:00"}),
              sheet.ActionTime);
}

TEST_F(RecordedCount, goesOnFromTheNumberOnShowWithoutAFloor)
{
    for (const auto& [text, next] : {std::pair{"41", 40}, {"0", -1}, {"none", -1}, {"", -1}}) {
        frmMain.Text2[1].text = text;
        tapWith(undoKey, 'Q');
        EXPECT_EQ(decimalText(next), frmMain.Text2[1].text) << text;
        EXPECT_EQ(next, stored(1)) << text;
        EXPECT_EQ(decimalText(next), frmMain.Text3[0].text) << text;
        EXPECT_TRUE(frmMain.Text2[1].bold) << text;
    }
}

TEST_F(RecordedCount, neverFailsForTheSizeOfATotal)
{
    frmMain.Text2[2].text = "40000";
    tap('Q');
    EXPECT_EQ("40001", frmMain.Text3[0].text);
    frmMain.Text2[2].text = frmMain.Text2[3].text = "2147483647";
    tap('W');
    EXPECT_EQ("2147483647", frmMain.Text3[0].text);
    EXPECT_EQ("2147483647", frmMain.Text2[2].text);
}

TEST_F(RecordedCount, goesByTheKeySettings)
{
    useKeySettings();
    sheet.TaxonRecord[2].KeyIndex = "7";
    sheet.KeySetting[40].Code = " 153 ";    // as key 3: the last row counts
    sheet.KeySetting[rowSave].Code = "250"; // saves, and leaves no mark on the undo stack
    for (const int key : {151, 152, 153, 151, 250, undoKey, int{'Q'}})
        tap(key);
    tapWith(shift1, 152);
    EXPECT_EQ("4", frmMain.Text3[0].text);
    for (const int slot : {1, 7, 40, 52})
        EXPECT_EQ(1, shown(slot)) << slot;
}

TEST_F(RecordedCount, withoutASlotIsAStopForUndo)
{
    useKeySettings();
    sheet.KeySetting[rowShift1Copy].Code = "99";
    tap(151);
    tap(99);
    EXPECT_EQ(1, sheet.ActionCount);
    tap(undoKey);
    EXPECT_EQ("1", frmMain.Text3[0].text);
    EXPECT_FALSE(frmMain.mnuUndo.enabled);
}

// No sheet holds such rows today; if one did, a wrong count would come without a word.
TEST_F(RecordedCount, ofARowThatPointsBesideTheSheetIsTakenBackWithoutTrace)
{
    useKeySettings();
    sheet.TaxonRecord[1].KeyIndex = "60";
    sheet.TaxonRecord[2].KeyIndex = "-5";
    tap(152);
    Undo();
    down(shift1);
    tapWith(shift2, 151); // 60 + 90
    Undo();
    for (int slot = 1; slot <= taxonSlots; ++slot)
        EXPECT_EQ(0, stored(slot)) << slot;
}
