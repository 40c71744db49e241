#include "core/undo.h"

#include "core/program_test.h"
#include "core/show_sample.h"

class UndoOfCounts : public ProgramTest {
protected:
    static std::vector<std::string> loggedFrom(int entry)
    {
        return {sheet.ActionText.begin() + entry, sheet.ActionText.end()};
    }
};

TEST_F(UndoOfCounts, goesOnUntilTheStackIsEmpty)
{
    frmMain.Text1[1].text = "Alnus";
    tap('Q');
    tapWith(undoKey, 'W');
    Undo();
    EXPECT_TRUE(frmMain.mnuUndo.enabled);
    Undo();
    EXPECT_FALSE(frmMain.mnuUndo.enabled);
    Undo();
    EXPECT_EQ("0", frmMain.Text3[0].text);
    EXPECT_EQ((std::vector<std::string>{"(Undo-amend) 2: ---", "(Undo) 1: Alnus"}), loggedFrom(3));
}

TEST_F(UndoOfCounts, reaches1001CountsBack)
{
    tap('W');
    tap('Q', 1001);
    for (int i = 0; i < 1002; ++i)
        Undo();
    EXPECT_EQ(0, shown(1));
    EXPECT_EQ(1, shown(2));
}

TEST_F(UndoOfCounts, bringsTheWholeSampleOnShow)
{
    addSamples(3);
    sheet.AdditionalInfo(2, 6) = "diatoms too";
    sheet.SampleStamp(2, 3) = "saved at noon";
    sheet.Count(1, 5) = 3;
    sheet.Count(2, 1) = -2;
    sheet.WarnNotLatest = false;
    showSample(2);
    tap('Q', 4);
    showSample(1);
    const int logged = sheet.ActionCount + 1;
    tap(undoKey);
    EXPECT_EQ((std::vector<std::string>{"(Change sample: 20)", "(Undo) 1: ---"}), loggedFrom(logged));
    EXPECT_EQ(3, sheet.Count(1, 5)); // the sample that was left
    EXPECT_EQ(1, sheet.Count(2, 1));
    EXPECT_EQ(0, shown(5));
    EXPECT_EQ("1", frmMain.Text3[0].text);
    EXPECT_EQ("20", frmMain.Text1[0].text);
    EXPECT_EQ("20", frmMain.Combo2.text);
    EXPECT_EQ("2/3", frmMain.Label4.caption);
    EXPECT_EQ("note 2", frmMain.Text4.text);
    EXPECT_EQ("---", frmMain.Text5[1].text);
    EXPECT_EQ("diatoms too", frmMain.Text5[6].text);
    EXPECT_EQ("saved at noon", frmMain.Label14[2].caption);
}

TEST_F(UndoOfCounts, stampsTheFirstIndividualOnlyWhereItTakesBackToOne)
{
    addSamples(2);
    showSample(2);
    tap('Q');
    sheet.SampleStamp(2, 2) = "earlier";
    showSample(1);
    tap('Q', 2);
    sheet.SampleStamp(1, 2) = "";
    Undo();
    EXPECT_EQ("15/11/2026 (14:05:09)", sheet.SampleStamp(1, 2));
    EXPECT_EQ("15/11/2026 (14:05:09)", frmMain.Label14[1].caption);
    Undo();
    Undo(); // shows sample 2 with its one individual on the way
    EXPECT_EQ("earlier", sheet.SampleStamp(2, 2));
    EXPECT_EQ("earlier", frmMain.Label14[1].caption);
}

TEST_F(UndoOfCounts, ringsOnAStepBackToAHundredOfTheChosenTotal)
{
    hooks.AutoBackup = [] { ADD_FAILURE() << "backups are for counting up"; };
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
    const std::size_t played = sound.played.size();
    tap('Q');
    Undo();
    EXPECT_EQ(played, sound.played.size());
}
