#include "core/cue.h"

#include "core/program_test.h"

class Muted : public ProgramTest {
protected:
    ~Muted() override { hearing = {}; }
};

TEST_F(Muted, isAMatterOfTheEarsAlone)
{
    static int backups;
    backups = 0;
    hooks.AutoBackup = [] {
        ++backups;
        return true;
    };
    mnuMute_Click();
    tap('Q', 100);
    EXPECT_TRUE(frmMain.hundredMark[0]);
    expectStaleQuestion(Answer::no);
    sheet.WarnNotLatest = true;
    sheet.SampleField(1, 1) = "7";
    tap('Q');
    EXPECT_TRUE(sound.played.empty() && sound.beeps == 0);
    EXPECT_EQ(backups, 1);
    mnuMute_Click();
    sheet.WarnNotLatest = false;
    tap('Q');
    EXPECT_EQ(sound.played.size(), 1U);
}
