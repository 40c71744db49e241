#include "files/recovery.h"

#include "core/endings.h"
#include "core/program_test.h"
#include "files/save_sheet.h"
#include "files/sheet_on_screen.h"

namespace {

const std::string copyPath = "/program/References/Recovery_copy_(1).csv";

class Recovery : public ProgramTest {
protected:
    bool ended = false;

    Recovery()
    {
        hooks.SaveSheet = SaveSheet;
        hooks.EndRecovery = endRecovery;
        recoveryCopy = {};
        findRecoveryCopies();
    }
    /// What follows each event in the running program.
    void count(int times)
    {
        for (int i = 0; i < times; ++i) {
            tap('Q');
            watchUnsavedWork();
        }
    }
    void timePasses()
    {
        if (recoveryTimer.milliseconds == 0)
            return;
        recoveryTimer.stop();
        RecoveryTimer_Timer();
    }
    /// The program was killed; another one starts on the same files.
    void crashAndStart()
    {
        sheet = SheetState();
        sheet.ActionText = sheet.ActionTime = {""};
        frmMain = MainScreen();
        recoveryCopy = {};
        files.claimed.clear();
    }
    void expectOffer(const std::string& name, Answer answer)
    {
        dialogs.expect("TallyStrata ended while '" + name +
                           "' was not saved. Do you want to take up what was counted?",
                       "TallyStrata", answer);
    }
};

} // namespace

TEST_F(Recovery, copyIsThereWithinTenSecondsAndGoesWithTheSave)
{
    watchUnsavedWork();
    EXPECT_EQ(recoveryTimer.starts, 0);
    count(3);
    EXPECT_EQ(recoveryTimer.starts, 1) << "from the first change, not from the last";
    EXPECT_LE(recoveryTimer.milliseconds, 10000);
    EXPECT_EQ(files.contents.count(copyPath), 0) << "nothing is written inside a key press";
    files.room = 10;
    timePasses();
    EXPECT_EQ(files.contents.count(copyPath), 0);
    files.room = SIZE_MAX;
    timePasses(); // without another key
    EXPECT_EQ(files.contents.count(copyPath), 1);
    EXPECT_EQ(recoveryTimer.milliseconds, 0) << "an idle program writes nothing";
    dialogs.paths = {"/core.csv"};
    SaveSheet(SaveMode::plain);
    watchUnsavedWork();
    EXPECT_EQ(files.contents.count(copyPath), 0);
}

TEST_F(Recovery, crashedSheetIsTakenUpWithItsFileAndItsCounts)
{
    dialogs.paths = {"/cores/Lake.csv"};
    count(2);
    SaveSheet(SaveMode::plain);
    watchUnsavedWork();
    count(5);
    timePasses();
    const std::string saved = files.contents["/cores/Lake.csv"];
    crashAndStart();
    expectOffer("Lake", Answer::yes);
    findRecoveryCopies();
    EXPECT_EQ(shown(1), 7);
    EXPECT_EQ(sheet.SheetPath, "/cores/Lake.csv");
    EXPECT_EQ(frmMain.caption, "TallyStrata 3.2.5 - [Lake]");
    EXPECT_TRUE(frmMain.Command5[0].enabled && !sheet.SheetPristine);
    EXPECT_EQ(files.contents["/cores/Lake.csv"], saved) << "until it is saved";
    EXPECT_EQ(files.contents.count(copyPath), 1) << "still unsaved work";
    SaveSheet(SaveMode::plain);
    watchUnsavedWork();
    EXPECT_EQ(files.contents.count(copyPath), 0);
    crashAndStart();
    findRecoveryCopies(); // nothing is offered
}

TEST_F(Recovery, sheetThatIsCutShortByItsOwnSaveIsWholeInTheCopy)
{
    dialogs.paths = {"/cores/Lake.csv"};
    count(2);
    SaveSheet(SaveMode::plain);
    watchUnsavedWork();
    files.cutShort = {"/cores/Lake.csv"};
    for (const int counted : {0, 3}) { // what was saved would be lost too
        count(counted);
        dialogs.expect("The file is being used by another software. Please close the file and try again.",
                       "Error", Answer::ok);
        SaveSheet(SaveMode::plain);
        watchUnsavedWork();
        crashAndStart();
        expectOffer("Lake", Answer::yes);
        findRecoveryCopies();
        EXPECT_EQ(shown(1), 2 + counted);
    }
}

TEST_F(Recovery, unnamedSheetAndLostFileComeBackWithoutAName)
{
    count(4);
    timePasses();
    crashAndStart();
    expectOffer("Untitled", Answer::yes);
    findRecoveryCopies();
    EXPECT_EQ(shown(1), 4);
    EXPECT_TRUE(sheet.SheetPath.empty() && sheet.SheetUnnamed);
    EXPECT_EQ(frmMain.caption, "TallyStrata 3.2.5 - [Untitled]");
}

TEST_F(Recovery, declinedCopyGoesToTheBackups)
{
    count(4);
    timePasses();
    const std::string text = files.contents[copyPath];
    crashAndStart();
    expectOffer("Untitled", Answer::no);
    findRecoveryCopies();
    EXPECT_EQ(files.contents["/program/References/Back up files/Declined_recovery_copy.csv"], text);
    EXPECT_EQ(files.contents.count(copyPath), 0);
    EXPECT_EQ(recoveryCopy.path, copyPath);
}

TEST_F(Recovery, anotherRunningProgramKeepsItsCopy)
{
    files.contents[copyPath] = "of the other program";
    files.claimedByOthers = {copyPath};
    crashAndStart();
    findRecoveryCopies();
    count(1);
    timePasses();
    EXPECT_EQ(files.contents[copyPath], "of the other program");
    EXPECT_EQ(files.contents.count("/program/References/Recovery_copy_(2).csv"), 1);
}

TEST_F(Recovery, endKeepsTheCopyOnlyOfWorkWhoseSaveFailed)
{
    const auto close = [&](Answer answer) {
        dialogs.expect("Do you want to save the changes you made to 'Untitled.csv'?", "TallyStrata", answer);
        bool cancel = false;
        Form_Unload(cancel);
    };
    count(3);
    close(Answer::cancel);
    timePasses();
    EXPECT_EQ(files.contents.count(copyPath), 1);
    close(Answer::no);
    EXPECT_EQ(files.contents.count(copyPath), 0);
    dialogs.paths = {std::nullopt};
    close(Answer::yes); // the dialog is cancelled
    EXPECT_EQ(files.contents.count(copyPath), 1) << "and written although no time had passed";
}

TEST_F(Recovery, sumsThatNoDataSheetHoldsAreCopiedAllTheSame)
{
    count(1);
    sheet.Count(1, 2) = 40000;
    frmMain.Text2[2].text = "40000";
    timePasses();
    crashAndStart();
    expectOffer("Untitled", Answer::yes);
    findRecoveryCopies();
    EXPECT_EQ(shown(2), 40000);
}
