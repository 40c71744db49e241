#include "keys/first_run.h"

#include "core/program_test.h"
#include "keys/delivered_keys.h"
#include "keys/key_settings.h"

namespace {

const std::string path = "/program/References/KeySetting.csv";
InitialForm& f = frmInitial;
int choices = 0;

class FirstRun : public ProgramTest {
protected:
    FirstRun()
    {
        choices = 0;
        hooks.ShowFirstRunChoice = [] { ++choices; };
        ShowInitial();
    }
    /// Walks through all boxes as the focus goes.
    static void pressAll(int firstCode)
    {
        while (f.focus < referenceKeys) {
            const int box = f.focus;
            frmInitial_Text1_GotFocus(box);
            frmInitial_Text1_KeyDown(box, firstCode + box);
        }
    }
};

} // namespace

TEST_F(FirstRun, walksThroughTheKeysAndBeginsTheFirstSheet)
{
    EXPECT_TRUE(f.visible && !frmMain.visible && f.FirstRun == 0 && f.focus == 0);
    EXPECT_FALSE(f.Command1.enabled || f.Text1[1].enabled || f.Label4[1].enabled);
    frmInitial_Text1_KeyDown(0, 16);
    EXPECT_TRUE(f.focus == 1 && f.Text1[1].enabled && f.Label4[1].enabled && !f.Text1[2].enabled);
    pressAll(200);
    EXPECT_TRUE(f.Command1.enabled);
    files.unwritable.insert(path);
    dialogs.expect("TallyStrata could not write the key settings (KeySetting.csv). The settings that were in "
                   "use stay in use. Please check that the file is not read-only and that the disk is not "
                   "full, and try again.",
                   "Error");
    frmInitial_Command1_Click();
    EXPECT_TRUE(f.visible && choices == 0 && !sheet.UseKeySettings && !frmMain.visible);

    files.unwritable.clear();
    frmInitial_Command1_Click();
    EXPECT_TRUE(!f.visible && frmMain.visible && choices == 1);
    // No file could be read: the whole of the delivered settings is there, and in force.
    KeySettingTable expected = deliveredKeySettings();
    expected[rowFirstReference].Code = "16";
    for (int i = 1; i < referenceKeys; ++i)
        expected[rowFirstReference + i].Code = decimalText(200 + i);
    EXPECT_EQ(keySettingsText(expected), files.contents[path]);
    EXPECT_TRUE(sheet.UseKeySettings && sheet.KeysInitialised && sheet.Shift1Key == 186);
    tapWith(186, 'Q');
    EXPECT_EQ(1, shown(46));
}

TEST_F(FirstRun, fromTheMenuShowsTheCodesAndLetsSomeBePressedAgain)
{
    pressAll(100);
    frmInitial_Command1_Click();
    mnuInitial_Click();
    EXPECT_TRUE(f.FirstRun == 1 && f.Command1.enabled && f.focus == referenceKeys && !isMainEnabled());
    frmInitial_Text1_GotFocus(3);
    dialogs.expect("Please fill all boxes.", "Error");
    frmInitial_Command1_Click();
    frmInitial_Text1_KeyDown(3, 100); // twice the same key is accepted
    EXPECT_EQ(referenceKeys, f.focus);
    f.Text1[0].text = " 99";
    frmInitial_Command1_Click();
    EXPECT_TRUE(!f.visible && isMainEnabled() && frmMain.visible && choices == 1);
    EXPECT_EQ("99", sheet.KeySetting[51].Code);
    EXPECT_EQ("100", sheet.KeySetting[54].Code);
}

TEST_F(FirstRun, thatIsGivenUpShowsTheMainWindowUnlessTheProgramEnds)
{
    closeInitial();
    EXPECT_TRUE(!f.visible && frmMain.visible && choices == 0 && files.contents.empty());
    ShowInitial();
    sheet.Unloading = true;
    closeInitial();
    EXPECT_FALSE(frmMain.visible);
}
