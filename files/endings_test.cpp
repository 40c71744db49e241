#include "core/endings.h"

#include "core/program_test.h"
#include "files/backup.h"
#include "files/save_sheet.h"

namespace {

bool ended = false;

class Endings : public ProgramTest {
protected:
    const std::string closing = "Do you want to save the changes you made to '";

    Endings()
    {
        hooks.SaveSheet = SaveSheet;
        hooks.AutoBackup = AutoBackup;
        hooks.EndProgram = [] { ended = true; };
        ended = false;
    }
    void saveAs(const std::string& path)
    {
        dialogs.paths.push_back(path);
        mnuSaveAs_Click();
    }
    bool close()
    {
        bool cancel = false;
        Form_Unload(cancel);
        return cancel;
    }
};

} // namespace

TEST_F(Endings, resetGoesBackToTheLastSaveAfterAQuestion)
{
    const std::string question = "This action will abort all inputs after last saving. Do you proceed?";
    AbortCount(); // nothing counted: a sound and no word
    EXPECT_EQ(sound.played, std::vector{Cue::SoundError});
    EXPECT_EQ(sheet.ActionCount, 0);

    tap('Q', 3);
    saveAs("/home/a.csv");
    tap('W', 200);
    dialogs.expect(question, "Caution!", Answer::no);
    AbortCount();
    EXPECT_EQ(shown(2), 200);
    EXPECT_TRUE(frmMain.Command2[0].enabled);
    dialogs.expect(question, "Caution!", Answer::yes);
    AbortCount();
    EXPECT_EQ(shown(2) + stored(2), 0);
    EXPECT_EQ(shown(1), 3);
    EXPECT_EQ(frmMain.Text3[0].text, "3");
    EXPECT_FALSE(frmMain.Command2[0].enabled || frmMain.Text2[2].bold);
    EXPECT_EQ(frmMain.Combo1.text, "(Reset)");
    EXPECT_EQ(sheet.UndoStack[100].slot, 0);
    EXPECT_EQ(sheet.UndoStack[101].slot, 2) << "only the newest 101 entries lose their slots";
}

TEST_F(Endings, quittingAsksAndSavesNothing)
{
    tap('Q');
    for (const Answer answer : {Answer::no, Answer::yes}) {
        dialogs.expect("This action will abort current data. Do you proceed?", "Caution!", answer);
        mnuQuit_Click();
        EXPECT_EQ(ended, answer == Answer::yes);
    }
    EXPECT_TRUE(sheet.Unloading);
    EXPECT_FALSE(sheet.SoundOn);
}

TEST_F(Endings, closingAsksOnlyAboutUnsavedWork)
{
    EXPECT_FALSE(close());
    EXPECT_TRUE(ended);

    ended = false;
    tap('Q');
    dialogs.expect(closing + "Untitled.csv'?", "TallyStrata", Answer::cancel);
    EXPECT_TRUE(close());
    EXPECT_FALSE(ended);
    saveAs("/home/Lake1.csv");
    tap('Q');
    dialogs.expect(closing + "Lake1.csv'?", "TallyStrata", Answer::yes);
    EXPECT_FALSE(close());
    EXPECT_TRUE(ended);
    EXPECT_NE(files.contents.at("/home/Lake1.csv").find("\r\n1,0,0,\"---\",2\r\n"), std::string::npos);
    tap('Q');
    dialogs.expect(closing + "Lake1.csv'?", "TallyStrata", Answer::no);
    EXPECT_FALSE(close());
    EXPECT_NE(files.contents.at("/home/Lake1.csv").find("\r\n1,0,0,\"---\",2\r\n"), std::string::npos);
}

TEST_F(Endings, aFailedSaveAtClosingEndsTheProgramButNotTheCounts)
{
    tap('Q', 5);
    dialogs.expect(closing + "Untitled.csv'?", "TallyStrata", Answer::yes);
    dialogs.paths.push_back(std::nullopt);
    EXPECT_TRUE(close());
    EXPECT_TRUE(ended && sheet.SoundOn);
    const std::string& backup = files.contents.at("/program/References/Back up files/Master_back_up.csv");
    EXPECT_NE(backup.find("\r\n\"1\",\"0\",\"0\",\"---\",\"5\"\r\n"), std::string::npos);
}
