#include "sheet/modify_mode.h"

#include "core/editing.h"
#include "core/program_test.h"
#include "core/text_changes.h"
#include "sheet/focus_and_pointer.h"

class ModifyMode : public ProgramTest {};

TEST_F(ModifyMode, hasItsTableOfStates)
{
    MainScreen& f = frmMain;
    const bool* const counting[] = {&f.Command3[0].enabled, &f.mnuStartAmend.enabled, &f.Command2[0].enabled,
                                    &f.Command4[0].enabled, &f.Command5[0].enabled,   &f.mnuSave.enabled,
                                    &f.Command5[1].enabled, &f.Text3[0].enabled,      &f.Text3[1].enabled,
                                    &f.Text3[2].enabled,    &f.Label1[0].visible,     &f.Label2[0].visible,
                                    &f.Label2[1].visible,   &f.Label2[2].visible,     &f.mnuUndo.enabled,
                                    &f.mnuReset.enabled,    &f.mnuNew.enabled,        &f.mnuOpen.enabled,
                                    &f.mnuSaveAs.enabled,   &f.mnuPercent.enabled,    &f.mnuSaveCopy.enabled};
    const bool* const modifying[] = {
        &f.Command3[1].enabled, &f.mnuFinishAmend.enabled, &f.Label1[1].visible,   &f.Label1[135].visible,
        &f.Label1[135].enabled, &f.Command7[1].visible,    &f.Command7[6].visible, &f.Text4.enabled,
        &f.Text5[1].enabled,    &f.Text5[6].enabled,       &f.Label10[1].enabled,  &f.Label10[6].enabled};
    const auto expectMode = [&](bool on) {
        for (std::size_t i = 0; i < std::size(counting); ++i)
            EXPECT_EQ(!on, *counting[i]) << i;
        for (std::size_t i = 0; i < std::size(modifying); ++i)
            EXPECT_EQ(on, *modifying[i]) << i;
        EXPECT_FALSE(f.mnuNext.enabled);
        EXPECT_EQ(on, sheet.Modifying);
        EXPECT_EQ(on, f.sheetColour == RGB(200, 100, 100));
        EXPECT_EQ(on ? MainFocus::Text4 : MainFocus::Text99, f.focus);
        EXPECT_EQ(on ? "(Modify)" : "(Resume)", sheet.ActionText.back());
    };
    sheet.SheetPristine = false;
    sheet.SampleNote(1, 0) = "A note";
    f.SSTab1 = 2;
    Command3_Click(0);
    expectMode(true);
    EXPECT_EQ(0, f.SSTab1);
    EXPECT_EQ("A note", f.Text4.text);
    EXPECT_EQ(6, f.Text4.caret);
    EXPECT_TRUE(f.Text1[0].enabled) << "the sample's name is edited here too";
    tap('Q');
    tapWith(shift1, 'Q');
    EXPECT_EQ(0, sheet.SampleTotal) << "no key counts";
    EXPECT_EQ(0, f.SSTab1);
    Label1_Click(4);
    Command3_Click(1);
    expectMode(false);
    EXPECT_FALSE(f.Label1[4].bold);
    mnuStartAmend_Click();
    expectMode(true);
    mnuFinishAmend_Click();
    expectMode(false);
}

TEST_F(ModifyMode, goesFromCellToCellInTheOrderOfTheKeysAndTurnsThePage)
{
    EXPECT_EQ(goFromCell(1, 1), 2);
    EXPECT_EQ(frmMain.SSTab1, 0);
    EXPECT_EQ(goFromCell(45, 1), 46);
    EXPECT_EQ(frmMain.SSTab1, 1);
    EXPECT_EQ(goFromCell(46, -1), 45);
    EXPECT_EQ(frmMain.SSTab1, 0);
    EXPECT_EQ(goFromCell(135, 1), 135);
    EXPECT_EQ(frmMain.SSTab1, 2);
    EXPECT_EQ(goFromCell(1, -1), 1);
}

TEST_F(ModifyMode, resumeOnAPristineSheetOffersNeitherResetNorNextSample)
{
    mnuStartAmend_Click();
    mnuFinishAmend_Click();
    EXPECT_FALSE(frmMain.Command2[0].enabled || frmMain.Command5[1].enabled || frmMain.mnuNext.enabled);
}

TEST_F(ModifyMode, theMousePicksARowAndEndsTheEditing)
{
    EXPECT_FALSE(Text1_MouseDown(5, true) || Text2_MouseDown(5, false) || Label1_Click(5));
    frmMain.focus = MainFocus::elsewhere;
    Text2_MouseDown(5, false);
    EXPECT_EQ(MainFocus::Text99, frmMain.focus);
    mnuStartAmend_Click();
    EXPECT_TRUE(Text1_MouseDown(50, true));
    EXPECT_EQ(50, sheet.MoveSource);
    EXPECT_TRUE(Text2_MouseDown(51, true));
    EXPECT_EQ(51, sheet.MoveSource);
    EXPECT_FALSE(Text1_MouseDown(52, false) || Text1_MouseDown(0, true));
    EXPECT_TRUE(Label1_Click(53));
    EXPECT_EQ(53, sheet.MoveSource);

    frmMain.Label10[2].caption = "Depth";
    Label10_Click(2);
    Label10_Click(2);
    EXPECT_EQ("Depth:", frmMain.Label10[2].caption);

    Text1_GotFocus(1);
    Text1_Edited(1, "Betula", 6);
    sound.played.clear();
    Text1_DblClick();
    EXPECT_EQ("Counting again", frmMain.notice);
    EXPECT_EQ(std::vector{Cue::SoundError}, sound.played);
    EXPECT_FALSE(sheet.Modifying || frmMain.Text4.enabled || frmMain.Text5[1].enabled ||
                 frmMain.Label10[1].enabled);
    EXPECT_TRUE(frmMain.Text1[1].italic);
    const auto last = sheet.ActionText.rbegin();
    EXPECT_EQ("(Resume)", *last);
    EXPECT_EQ("1: Taxa name [Betula]", *(last + 1));
}
