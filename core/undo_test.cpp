#include "core/undo.h"

#include "core/program_test.h"
#include "core/show_sample.h"

class UndoOfCounts : public ProgramTest {};

TEST_F(UndoOfCounts, goesOnUntilTheStackIsEmptyAndIsWorkToSave)
{
    tap('W');
    tap('Q', 1001); // one more than the stack holds
    frmMain.Command5[0].enabled = frmMain.mnuSave.enabled = false;
    tap(undoKey);
    EXPECT_TRUE(frmMain.Command5[0].enabled && frmMain.mnuSave.enabled && frmMain.mnuUndo.enabled);
    for (int i = 0; i < 1001; ++i)
        Undo();
    EXPECT_EQ(0, shown(1));
    EXPECT_EQ(1, shown(2));
    EXPECT_FALSE(frmMain.mnuUndo.enabled);
}

TEST_F(UndoOfCounts, waitsWhilePercentagesAreShown)
{
    tap('Q');
    sheet.KeysActive = false;
    frmMain.Text2[1].text = "33.3";
    Undo();
    EXPECT_EQ("33.3", frmMain.Text2[1].text);
    EXPECT_TRUE(stored(1) == 1 && sheet.ActionCount == 1 && sheet.UndoStack[0].slot == 1);
}

TEST_F(UndoOfCounts, bringsTheWholeSampleOnShowAndTheNextKeyAsks)
{
    addSamples(3);
    sheet.AdditionalInfo(2, 6) = "diatoms too";
    sheet.SampleStamp(2, 3) = "saved at noon";
    sheet.Count(1, 5) = 3;
    sheet.Count(2, 1) = -2;
    showSample(2);
    sheet.WarnNotLatest = false;
    tap('Q', 4);
    showSample(1);
    tap(undoKey);
    EXPECT_EQ("(Change sample: 20)", sheet.ActionText.end()[-2]);
    EXPECT_EQ("(Undo) 1: ---", sheet.ActionText.back());
    EXPECT_EQ(3, sheet.Count(1, 5)); // the sample that was left
    EXPECT_TRUE(sheet.Count(2, 1) == 1 && shown(1) == 1 && shown(5) == 0);
    EXPECT_EQ("20 20 2/3", frmMain.Text1[0].text + " " + frmMain.Combo2.text + " " + frmMain.Label4.caption);
    EXPECT_EQ("note 2 ---", frmMain.Text4.text + " " + frmMain.Text5[1].text);
    EXPECT_EQ("diatoms too", frmMain.Text5[6].text);
    EXPECT_EQ("saved at noon", frmMain.Label14[2].caption);
    expectStaleQuestion(Answer::no);
    tap('Q');
    EXPECT_EQ(1, sheet.Count(2, 1));
}

TEST_F(UndoOfCounts, ringsOnAStepBackToAHundredOfTheChosenTotal)
{
    hooks.AutoBackup = [] {
        ADD_FAILURE() << "backups are for counting up";
        return true;
    };
    tap('Q', 3);
    for (const int before : {101, 100, 301}) {
        frmMain.Text3[0].text = decimalText(before);
        frmMain.Text3[1].text = "201"; // not chosen
        sheet.AlarmArmed = false;
        Undo();
        EXPECT_EQ(before == 100 ? Cue::SoundUndo : Cue::SoundAlarm, sound.played.back()) << before;
        EXPECT_TRUE(sheet.AlarmArmed);
    }
    sheet.SoundOn = false;
    tap('Q');
    Undo();
    EXPECT_EQ(6U, sound.played.size());
}
