#include "core/program_test.h"

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
    EXPECT_TRUE(frmMain.Combo1.items == lines && frmMain.Combo1.text == lines[1]);
    EXPECT_EQ((std::vector<std::string>{"Created: )", lines[0], lines[1]}), sheet.ActionText);
    EXPECT_EQ((std::vector<std::string>{"", "15/11/2026_14:05:09:27", "16/11/2026_00:05:59:00"}),
              sheet.ActionTime);
}

TEST_F(RecordedCount, goesOnFromTheNumberOnShowWithoutAFloorAndWithinItsType)
{
    for (const auto& [text, next] :
         {std::pair{"41", 40}, {"0", -1}, {"none", -1}, {"", -1}, {"-2147483648", INT32_MIN}}) {
        frmMain.Text2[1].text = text;
        tapWith(undoKey, 'Q');
        EXPECT_EQ(decimalText(next), frmMain.Text2[1].text) << text;
        EXPECT_TRUE(next == stored(1) && frmMain.Text2[1].text == frmMain.Text3[0].text) << text;
    }
    frmMain.Text2[1].text = frmMain.Text2[2].text = "2147483647";
    tap('W');
    EXPECT_EQ("2147483647", frmMain.Text3[0].text);
}

TEST_F(RecordedCount, goesByTheKeySettings)
{
    useKeySettings();
    sheet.TaxonRecord[2].KeyIndex = "7";
    sheet.KeySetting[40].Code = " 153 ";            // as key 3: the last row counts
    sheet.KeySetting[5].Code = decimalText(shift1); // a shift key counts nothing all the same
    sheet.KeySetting[rowSave].Code = "250";         // saves, and leaves no mark on the undo stack
    for (const int key : {151, 152, 153, 151, 250, shift1, undoKey, int{'Q'}})
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
    sheet.TaxonRecord[2].KeyIndex = "150"; // beside the sheet: counts nothing
    tap(151);
    for (const int key : {99, 152}) {
        tap(key);
        EXPECT_EQ(1, sheet.ActionCount);
        tap(undoKey);
        EXPECT_EQ("1", frmMain.Text3[0].text);
        EXPECT_FALSE(frmMain.mnuUndo.enabled);
    }
}
