#include "core/program_test.h"
#include "keys/delivered_keys.h"
#include "keys/key_capture.h"
#include "keys/key_commit.h"
#include "keys/key_editor.h"
#include "keys/key_settings.h"

#include <set>

namespace {

const std::string path = "/program/References/KeySetting.csv";
const std::string notWritten =
    "TallyStrata could not write the key settings (KeySetting.csv). The settings that were in use stay in "
    "use. Please check that the file is not read-only and that the disk is not full, and try again.";
KeyCodeForm& f = frmKeyCode;

/// The delivered keys on a keyboard that has been identified, and a main window on show.
class KeyEditor : public ProgramTest {
protected:
    KeyEditor()
    {
        KeySettingTable table = deliveredKeySettings();
        int row = rowFirstReference;
        for (const int code : {16, 17, 46, 8, 27, 13, 32, 112, 37, 38, 39, 40})
            table[row++].Code = decimalText(code);
        files.contents[path] = keySettingsText(table);
        ReadKeySettings();
        frmMain.visible = true;
        mnuKeyCodeReader_Click();
    }

    /// Presses a key in a box; `character` 0: it types nothing.
    static void press(int key, int code, char32_t character = 0)
    {
        frmKeyCode_Text1_KeyDown(key, code);
        if (character != 0)
            frmKeyCode_Text1_KeyPress(key, character);
        frmKeyCode_Text1_KeyUp(key, code);
    }
    static std::string capture(int key, int code, char32_t character = 0)
    {
        frmKeyCode_Text1_GotFocus(key);
        press(key, code, character);
        frmKeyCode_Text1_LostFocus(key);
        return f.Text1[key].text + " " + f.Text2[key].text;
    }
    static std::string captureFunction(int function, int code, char32_t character = 0)
    {
        frmKeyCode_Text4_GotFocus(function);
        frmKeyCode_Text4_KeyDown(function, code);
        if (character != 0)
            frmKeyCode_Text4_KeyPress(function, character);
        frmKeyCode_Text4_KeyUp(function, code);
        frmKeyCode_Text4_LostFocus(function);
        return f.Text4[function].text;
    }
    static void type(int position, const std::string& text)
    {
        frmKeyCode_Text3_GotFocus(position);
        f.Text3[position].text = text;
        frmKeyCode_Text3_LostFocus(position);
    }
    void expectRefused(const std::string& message, int page)
    {
        const std::string before = keySettingsText(sheet.KeySetting);
        dialogs.expect(message, "Error");
        sound.played.clear();
        frmKeyCode_Command4_Click();
        EXPECT_EQ(std::vector{Cue::SoundError}, sound.played);
        EXPECT_EQ(page, f.SSTab1);
        EXPECT_TRUE(f.visible && !isMainEnabled() && !f.ProgressBar1.visible);
        EXPECT_EQ(before, keySettingsText(sheet.KeySetting));
        EXPECT_EQ(before, files.contents[path]);
    }
    static std::string reds(const auto& boxes)
    {
        std::string list;
        for (std::size_t i = 0; i < boxes.size(); ++i)
            if (boxes[i].red)
                list += decimalText(static_cast<long long>(i)) + " ";
        return list;
    }
};

} // namespace

TEST_F(KeyEditor, aPressGivesTextAndCodeOfOneKey)
{
    EXPECT_EQ("q 81", f.Text1[1].text + " " + f.Text2[1].text);
    EXPECT_EQ("Q 81", capture(9, 81, U'Q'));
    EXPECT_EQ("81", f.Label4.caption);
    EXPECT_EQ("[Shift] 16", capture(9, 16));
    EXPECT_EQ("[Enter] 13", capture(9, 13, 13));
    EXPECT_EQ("[Space] 32", capture(9, 32, U' '));
    EXPECT_EQ("[F5] 116", capture(9, 116));
    EXPECT_EQ("[F12] 123", capture(9, 123));
    EXPECT_EQ("\xE9 50", capture(9, 50, U'\u00E9'));
    EXPECT_EQ("q 81", capture(9, 81, U'\u0439')) << "a Cyrillic letter";
    EXPECT_EQ("; 186", capture(9, 186, U'\u0436'));
    EXPECT_EQ("' 222", capture(9, 222, U'"')) << "the file has no place for it";
    EXPECT_EQ("[F13] 124", capture(9, 124)) << "any key can be taken, a foot switch's too";
    EXPECT_EQ("q 81", capture(9, 81, 17)) << "with Ctrl held";

    frmKeyCode_Text1_GotFocus(9); // the last key of a visit holds, as a whole
    press(9, 65, U'a');
    press(9, 36);
    frmKeyCode_Text1_LostFocus(9);
    EXPECT_EQ("[Home] 36", f.Text1[9].text + " " + f.Text2[9].text);
    frmKeyCode_Text1_GotFocus(9); // left before the key came up
    press(9, 65, U'a');
    frmKeyCode_Text1_KeyDown(9, 16);
    frmKeyCode_Text1_LostFocus(9);
    EXPECT_EQ("[Home] 36", f.Text1[9].text + " " + f.Text2[9].text);
    frmKeyCode_Text1_GotFocus(9);
    frmKeyCode_Text1_KeyDown(9, 16);
    press(9, 65, U'A');
    frmKeyCode_Text1_KeyUp(9, 16); // Shift comes up last
    EXPECT_EQ("A 65", f.Text1[9].text + " " + f.Text2[9].text);
}

TEST_F(KeyEditor, theKeyOfTheDigit3MayTypeNothingElse)
{
    EXPECT_EQ("3 51", capture(9, 51, U'3'));
    dialogs.expect("Using double quotation mark causes fatal error. Please choose another key.",
                   "Are you an AZERTY keyboard user?");
    EXPECT_EQ("c 67", capture(9, 67, U'c'));
    EXPECT_EQ("c 67", capture(9, 51, U'"'));
}

TEST_F(KeyEditor, theKeysGoOnByRowsAsTheyAreSeenOnceOneIsTaken)
{
    const auto taken = [](int key) {
        frmKeyCode_Text1_GotFocus(key);
        EXPECT_EQ(keyBehind(key), 0) << "none is taken yet";
        press(key, 'Q', 'q');
        return keyBehind(key);
    };
    EXPECT_EQ(taken(28), 29);
    EXPECT_EQ(taken(30), 34);
    EXPECT_EQ(taken(42), 31);
    EXPECT_EQ(taken(27), 0) << "the last one";
    type(1, "45"); // stands twice: key 45 is seen at the later position
    type(45, "1");
    EXPECT_EQ(taken(33), 37);
    EXPECT_EQ(taken(44), 1);
    EXPECT_EQ(functionBehind(0), 1);
    EXPECT_EQ(functionBehind(3), -1);
    EXPECT_EQ(functionBehind(4), -1);

    dialogs.expect("Using double quotation mark causes fatal error. Please choose another key.",
                   "Are you an AZERTY keyboard user?");
    frmKeyCode_Text1_GotFocus(28);
    press(28, '3', '"');
    EXPECT_EQ(keyBehind(28), 0) << "it was refused";
}

TEST_F(KeyEditor, theDeliveredKeysComeBackAndAreStoredByOkAlone)
{
    capture(1, 'P', 'p');
    captureFunction(0, 'W', 'w');
    type(1, "45");
    f.Text1[2].red = f.Text4[0].red = true;
    const KeySettingTable before = sheet.KeySetting;
    frmKeyCode_DeliveredKeys_Click();
    EXPECT_TRUE(f.Text1[1].text == "q" && f.Text2[1].text == "81" && f.Text3[1].text == "1");
    EXPECT_TRUE(f.Text4[0].text == ";" && f.Text2[46].text == "186" && f.Text2[48].text == "186");
    EXPECT_FALSE(f.Text1[2].red || f.Text4[0].red);
    EXPECT_EQ(f.Text1[1].top, f.Text3[1].top);
    for (int row = 0; row < keySettingRows; ++row)
        EXPECT_EQ(sheet.KeySetting[row].Code, before[row].Code);
}

TEST_F(KeyEditor, functionKeysFillTheirCodes)
{
    EXPECT_EQ("[Up]", captureFunction(0, 38));
    EXPECT_EQ("[Down]", captureFunction(1, 40));
    EXPECT_EQ("", captureFunction(4, 124));
    frmKeyCode_Text4_GotFocus(3); // left before the key came up
    frmKeyCode_Text4_KeyDown(3, 9);
    frmKeyCode_Text4_LostFocus(3);
    EXPECT_EQ("=", f.Text4[3].text);
    std::string codes;
    for (const int box : {46, 47, 48, 49, 50, 51, 28, 29, 30, 34, 35, 36, 40, 41, 42})
        codes += f.Text2[box].text + " ";
    EXPECT_EQ("38 40 38 8 187 40 124 125 126 127 128 129 130 131 132 ", codes);
    EXPECT_EQ("[F1]", f.Text1[28].text);
}

TEST_F(KeyEditor, equalKeysAreRefused)
{
    capture(9, 36, U'q'); // another code, the same text
    f.Text3[5].text = "4";
    expectRefused("Same Ergodex key is being used for more than one place.", 2); // the earlier pair
    EXPECT_EQ("4 5 ", reds(f.Text3));
    type(5, "5");
    EXPECT_EQ("", reds(f.Text3));
    expectRefused("Same key code is being used for more than one taxon.", 0);
    EXPECT_EQ("1 9 ", reds(f.Text1));
    capture(9, 67, U'c');
    captureFunction(2, 187, U'=');
    expectRefused("Same functional key is being used for more than one place.", 1);
    EXPECT_EQ("2 3 ", reds(f.Text4));
    captureFunction(2, 8);
    frmKeyCode_Command4_Click();
    EXPECT_FALSE(f.visible);

    mnuKeyCodeReader_Click();
    frmKeyCode_Command2_Click();
    expectRefused("Same key code is being used for more than one taxon.", 0);
}

TEST_F(KeyEditor, whatIsCommittedIsInForceAndOnDisk)
{
    sheet.KeySetting[rowShift1Copy].Code = "99"; // by hand
    sheet.UseKeySettings = false;                // a cue was missing
    int arranged = 0;
    static int* const count = &arranged;
    *count = 0;
    hooks.ArrangeTaxonCells = [] { ++*count; };
    mnuKeyCodeReader_Click();
    capture(1, 37);
    captureFunction(0, 38);
    captureFunction(2, 46);
    type(1, "2");
    type(2, "1");
    frmKeyCode_Command4_Click();
    EXPECT_TRUE(!f.visible && isMainEnabled() && frmMain.visible && sheet.UseKeySettings);
    EXPECT_EQ(std::vector{Cue::SoundSave}, sound.played);
    EXPECT_EQ(1, arranged);
    EXPECT_TRUE(sheet.Shift1Key == 38 && sheet.Shift2Key == 80 && sheet.MinusKey == 46);
    tapWith(38, 37);
    EXPECT_EQ(1, shown(46));

    KeySettingTable expected = deliveredKeySettings();
    for (int row = rowFirstReference; row < keySettingRows; ++row)
        expected[row] = sheet.KeySetting[row];
    expected[1] = {"[Left]", "37", "2"};
    expected[2].Number = "1";
    expected[rowShift1] = expected[rowShift1Copy] = {"[Up]", "38", "n/a"};
    expected[rowUndo] = {"[Delete]", "46", "n/a"};
    EXPECT_EQ(keySettingsText(expected), files.contents[path]);
    EXPECT_EQ(keySettingsText(expected), keySettingsText(sheet.KeySetting));

    sheet.KeySetting[rowShift1Copy].Code = "99";
    mnuKeyCodeReader_Click();
    frmKeyCode_Command4_Click();
    EXPECT_EQ(keySettingsText(expected), files.contents[path]) << "also if Shift-1 is left alone";
}

TEST_F(KeyEditor, aFileThatCannotBeWrittenLeavesAllAsItWas)
{
    capture(1, 37);
    captureFunction(0, 38);
    files.room = 100;
    expectRefused(notWritten, 0);
    EXPECT_EQ(186, sheet.Shift1Key);
    files.room = SIZE_MAX;
    frmKeyCode_Command4_Click();
    EXPECT_EQ("[Left]", sheet.KeySetting[1].Definition);
    EXPECT_EQ(38, sheet.Shift1Key);
}

TEST_F(KeyEditor, withoutAFileACommitWritesACompleteOne)
{
    files.contents.clear();
    sheet.KeySetting = {};
    mnuKeyCodeReader_Click();
    frmKeyCode_Command4_Click();
    EXPECT_EQ(keySettingsText(deliveredKeySettings()), files.contents[path]);
}

TEST_F(KeyEditor, keysStandWhereTheirNumbersPutThem)
{
    std::set<std::pair<int, int>> places;
    for (int key = 1; key <= lastKeyBox; ++key)
        places.emplace(f.Text1[key].top, f.Text1[key].left);
    EXPECT_EQ(51U, places.size());
    const int home = f.Text3[1].left;
    type(1, "3");
    type(3, "1.4");
    EXPECT_EQ("1", f.Text3[3].text);
    EXPECT_TRUE(f.Text1[3].left == home && f.Text2[3].left == home && f.Text1[1].left == f.Text3[3].left);
    for (const char* wrong : {"46", "0", "x", "-1"}) {
        dialogs.expect("Counte key index must be between 1 and 45.", "Error");
        type(1, wrong);
        EXPECT_EQ("3", f.Text3[1].text);
    }

    frmKeyCode_SSTab1_Click(2);
    EXPECT_TRUE(f.Command5.visible);
    sheet.KeySetting[7].Number = "8"; // as a Commit before would have left it
    f.snapshot[7].Number = "8";
    frmKeyCode_Command5_Click();
    EXPECT_TRUE(sheet.KeySetting[7].Number == "7" && f.Text1[3].left == f.Text3[3].left);
    frmKeyCode_Option1_Click(0);
    frmKeyCode_Option1_Click(0);
    EXPECT_EQ(home - 1200, f.Text2[1].left);
    type(2, "2"); // the places stay those of the moved boxes
    EXPECT_EQ(home - 1200, f.Text2[1].left);
    EXPECT_EQ(5790 + 2 * 5055, f.Text1[rowSave].left);

    frmKeyCode_Command1_Click();
    EXPECT_TRUE(sheet.KeySetting[7].Number == "8" && !f.visible && isMainEnabled());
    EXPECT_NE(std::string::npos, files.contents[path].find("\"7\"")) << "the file is not touched";
}
