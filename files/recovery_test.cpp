#include "files/recovery.h"

#include "core/endings.h"
#include "core/show_sample.h"
#include "files/data_sheet_reader.h"
#include "files/open_sheet.h"
#include "files/recovery_program_test.h"

namespace {

const std::string copyPath = "/program/References/Recovery_copy_(1).csv";
const std::string journalPath = "/program/References/Recovery_journal_(1).txt";
const std::string another =
    " 'Lake' has been changed or is gone since, so they will be a sheet of their own, without a file.";

class Recovery : public RecoveryProgram {};

} // namespace

TEST_F(Recovery, copyIsThereWithinTenSecondsAndGoesWithTheSave)
{
    afterEvent();
    EXPECT_EQ(recoveryTimer.starts, 0);
    tap('Q', 3);
    watchUnsavedWork();
    watchUnsavedWork();
    EXPECT_EQ(recoveryTimer.starts, 1) << "from the first change, not from the last";
    EXPECT_LE(recoveryTimer.milliseconds, 10000);
    EXPECT_FALSE(isThere(copyPath) || isThere(journalPath)) << "nothing is written inside a key press";
    files.room = 10;
    timePasses();
    EXPECT_FALSE(isThere(copyPath));
    EXPECT_NE(frmMain.diskNotice, "");
    files.room = SIZE_MAX;
    timePasses(); // without another key
    EXPECT_TRUE(isThere(copyPath));
    EXPECT_EQ(frmMain.diskNotice, "");
    EXPECT_EQ(recoveryTimer.milliseconds, 0) << "an idle program writes nothing";
    saveAs("/core.csv");
    EXPECT_FALSE(isThere(copyPath) || isThere(journalPath));
}

TEST_F(Recovery, crashedSheetIsTakenUpWithItsFileAndItsCounts)
{
    count('Q', 2);
    saveAs("/cores/Lake.csv");
    count('Q', 5);
    timePasses();
    const std::string saved = files.contents["/cores/Lake.csv"];
    crash();
    expectOffer("Lake", "7", Answer::yes);
    findRecoveryCopies();
    EXPECT_EQ(shown(1), 7);
    EXPECT_EQ(sheet.SheetPath, "/cores/Lake.csv");
    EXPECT_EQ(frmMain.caption, "TallyStrata 3.2.5 - [Lake]");
    EXPECT_TRUE(frmMain.Command5[0].enabled && !sheet.SheetPristine);
    EXPECT_EQ(files.contents["/cores/Lake.csv"], saved) << "until it is saved";
    EXPECT_TRUE(isThere(copyPath)) << "still unsaved work";
    SaveSheet(SaveMode::plain);
    afterEvent();
    EXPECT_FALSE(isThere(copyPath));
    crash();
    findRecoveryCopies(); // nothing is offered
}

TEST_F(Recovery, everyCountIsInTheJournalOnceItIsPainted)
{
    count('Q', 3); // from the empty sheet
    EXPECT_FALSE(isThere(copyPath));
    crash();
    expectOffer("Untitled", "3", Answer::yes);
    findRecoveryCopies();
    EXPECT_EQ(frmMain.Combo1.text, "(Recovery copy taken up: 3 counts from the journal)");
    saveAs("/cores/Lake.csv");

    count('W', 2); // from the sheet's own file
    EXPECT_FALSE(isThere(copyPath));
    crash();
    expectOffer("Lake", "5", Answer::yes);
    findRecoveryCopies();
    EXPECT_TRUE(shown(1) == 3 && shown(2) == 2);
    EXPECT_EQ(sheet.SheetPath, "/cores/Lake.csv");
    EXPECT_FALSE(isThere(journalPath)) << "all of it is in a copy now";

    count('W', 4); // from the copy
    tap(undoKey);
    afterEvent();
    crash();
    expectOffer("Lake", "8", Answer::yes);
    findRecoveryCopies();
    EXPECT_TRUE(shown(1) == 3 && shown(2) == 5);
}

TEST_F(Recovery, journalThatIsDamagedOrAnotherCopysCostsNoMoreThanItsLines)
{
    count('Q', 2);
    timePasses();
    count('Q', 1);
    std::string& journal = files.contents[journalPath];
    const std::string ofThisCopy = journal;
    count('Q', 1);
    journal[ofThisCopy.size() + 20] ^= 1; // the last line
    crash();
    expectOffer("Untitled", "3", Answer::yes);
    findRecoveryCopies(); // writes another copy
    files.contents[journalPath] = ofThisCopy;
    count('W', 4);
    timePasses();
    files.contents[journalPath] = ofThisCopy; // as if it could not be removed
    crash();
    expectOffer("Untitled", "7", Answer::yes);
    findRecoveryCopies();
    EXPECT_TRUE(shown(1) == 3 && shown(2) == 4);
}

TEST_F(Recovery, editsAreCopiedAsSoonAsTheHandPauses)
{
    count('Q', 1);
    sheet.SampleNote(1, 0) = "charcoal";
    frmMain.Text4.text = "charcoal";
    afterEvent();
    EXPECT_FALSE(isThere(copyPath));
    EXPECT_EQ(pauseTimer.milliseconds, 100);
    EXPECT_EQ(deadlineTimer.milliseconds, 1000);
    pause();
    EXPECT_NE(files.contents[copyPath].find("charcoal"), std::string::npos);
}

TEST_F(Recovery, theSampleThatWasBeingCountedComesBackOnShow)
{
    addSamples(3);
    showSample(2);
    sheet.WarnNotLatest = false;
    count('Q', 2);
    for (const bool inJournal : {false, true}) {
        timePasses(); // all of it is in the copy
        sheet.WarnNotLatest = false;
        count('Q', inJournal ? 1 : 0);
        crash();
        expectOffer("Untitled", inJournal ? "3" : "2", Answer::yes);
        findRecoveryCopies();
        EXPECT_EQ(sheet.CurrentSample, 2);
        EXPECT_EQ(frmMain.Combo2.text, "20");
        EXPECT_EQ(shown(1), inJournal ? 3 : 2);
    }
}

TEST_F(Recovery, fileThatIsAnotherOneByNowIsNotWrittenOver)
{
    count('Q', 2);
    saveAs("/cores/Lake.csv");
    count('Q', 1);
    timePasses();
    const std::string ours = files.contents["/cores/Lake.csv"];
    const auto takeUp = [&](const std::string& individuals) {
        crash();
        expectOffer("Lake", individuals, Answer::yes, another);
        findRecoveryCopies();
        EXPECT_EQ(frmMain.caption, "TallyStrata 3.2.5 - [Untitled]");
        EXPECT_TRUE(sheet.SheetPath.empty() && sheet.SheetUnnamed);
    };
    files.contents["/cores/Lake.csv"] = "of another program";
    takeUp("3");
    EXPECT_EQ(shown(1), 3);
    dialogs.paths = {std::nullopt};
    SaveSheet(SaveMode::plain);
    EXPECT_EQ(dialogs.proposed, "/cores/Lake (recovered).csv");
    EXPECT_EQ(files.contents["/cores/Lake.csv"], "of another program");

    files.contents.erase(copyPath);
    files.contents["/cores/Lake.csv"] = ours;
    crash();
    findRecoveryCopies();
    dialogs.paths = {"/cores/Lake.csv"};
    sheet.SheetPristine = true;
    mnuOpen_Click();
    afterEvent();
    count('W', 1);
    files.contents.erase("/cores/Lake.csv"); // what the journal went on from
    takeUp("1");
    EXPECT_EQ(shown(2), 1) << "the counts alone";
}

TEST_F(Recovery, sheetThatWasReadInPartIsNotItsFileAfterACrashEither)
{
    count('Q', 2);
    saveAs("/cores/Lake.csv");
    const std::string whole = files.contents["/cores/Lake.csv"];
    files.contents["/cores/Half.csv"] = whole.substr(0, whole.size() / 2);
    sheet.SheetPristine = true;
    dialogs.paths = {"/cores/Half.csv"};
    mnuOpen_Click();
    afterEvent();
    ASSERT_TRUE(sheet.NotItsFile);
    count('W', 1);
    pause();
    crash();
    expectOffer("Untitled", "3", Answer::yes);
    findRecoveryCopies();
    EXPECT_TRUE(sheet.SheetPath.empty() && shown(1) == 2 && shown(2) == 1);
}

TEST_F(Recovery, sheetThatIsCutShortByItsOwnSaveIsWholeInTheCopy)
{
    count('Q', 2);
    saveAs("/cores/Lake.csv");
    files.cutShort = {"/cores/Lake.csv"};
    for (const int counted : {0, 3}) { // what was saved would be lost too
        count('Q', counted);
        dialogs.expect("The file is being used by another software. Please close the file and try again.",
                       "Error", Answer::ok);
        SaveSheet(SaveMode::plain);
        crash(); // before the event was over
        expectOffer("Lake", decimalText(2 + counted), Answer::yes, another);
        findRecoveryCopies();
        EXPECT_EQ(shown(1), 2 + counted);
        files.cutShort.clear();
        saveAs("/cores/Lake.csv");
        files.cutShort = {"/cores/Lake.csv"};
    }
}

TEST_F(Recovery, declinedCopiesGoToTheBackupsAndNeverOverOneAnother)
{
    for (int i = 0; i < 2; ++i) {
        count('Q', 4);
        timePasses();
        count('Q', 1); // only in the journal
        crash();
        expectOffer("Untitled", "5", Answer::no);
        findRecoveryCopies();
    }
    const auto declined = backups("Declined_recovery_copy_");
    ASSERT_EQ(declined.size(), 2U);
    EXPECT_EQ(declined[0], "Declined_recovery_copy_1_(15.11.2026 14.05.09 2).csv");
    for (const std::string& name : declined) {
        SheetTables tables;
        EXPECT_TRUE(readDataSheet(files.contents["/program/References/Back up files/" + name], tables));
        EXPECT_EQ(tables.Count(1, 1), 5);
    }
    EXPECT_FALSE(isThere(copyPath) || isThere(journalPath));
    EXPECT_EQ(recoveryCopy.place, 1);
}

TEST_F(Recovery, whatCannotBeMovedStaysAndNobodyWritesThere)
{
    count('Q', 4);
    timePasses();
    const std::string left = files.contents[copyPath];
    crash();
    expectOffer("Untitled", "4", Answer::no);
    files.room = 10; // no declined copy can be written
    findRecoveryCopies();
    files.room = SIZE_MAX;
    EXPECT_EQ(recoveryCopy.place, 2);
    count('Q', 1);
    timePasses();
    EXPECT_EQ(files.contents[copyPath], left);
}

TEST_F(Recovery, damagedCopyIsToldAndMovedAndNeverTakenUp)
{
    count('Q', 4);
    timePasses();
    std::string& copy = files.contents[copyPath];
    copy[copy.size() / 2] ^= 1;
    const std::string damaged = copy;
    crash();
    dialogs.expect(
        "What TallyStrata kept of unsaved work is damaged ('Recovery_copy_(1).csv'). Nothing of it was "
        "taken up. It was moved to the back up files.",
        "TallyStrata", Answer::ok);
    findRecoveryCopies();
    ASSERT_EQ(backups("Damaged_recovery_copy_1_").size(), 1U);
    EXPECT_EQ(files.contents["/program/References/Back up files/" + backups("Damaged_")[0]], damaged);
    EXPECT_EQ(shown(1), 0);
    EXPECT_EQ(recoveryCopy.place, 1);
}

TEST_F(Recovery, withoutAPlaceTheFootSaysSoUntilThereIsOne)
{
    for (int place = 1; place <= recoveryPlaces; ++place)
        files.claimedByOthers.insert(recoveryCopyPath(place));
    crash();
    findRecoveryCopies();
    EXPECT_NE(frmMain.diskNotice, "") << "nine others run";
    count('Q', 2);
    timePasses();
    EXPECT_NE(frmMain.diskNotice, "");
    files.claimedByOthers.erase(recoveryCopyPath(3));
    timePasses();
    EXPECT_EQ(frmMain.diskNotice, "");
    EXPECT_TRUE(isThere(recoveryCopyPath(3)));
}

TEST_F(Recovery, endKeepsTheCopyOnlyOfWorkWhoseSaveFailed)
{
    static bool ended;
    ended = false;
    hooks.EndProgram = [] { ended = true; };
    const auto close = [&](Answer answer) {
        dialogs.expect("Do you want to save the changes you made to 'Untitled.csv'?", "TallyStrata", answer);
        bool cancel = false;
        Form_Unload(cancel);
    };
    count('Q', 3);
    close(Answer::cancel);
    timePasses();
    EXPECT_TRUE(isThere(copyPath));
    close(Answer::no);
    EXPECT_FALSE(isThere(copyPath));

    ended = false;
    count('Q', 1);
    files.room = 10;
    dialogs.paths = {std::nullopt}; // the dialog is cancelled
    dialogs.expect("Do you want to save the changes you made to 'Untitled.csv'?", "TallyStrata", Answer::yes);
    dialogs.expect(
        "Neither the sheet nor a backup of it could be written. The program stays open, so that nothing is "
        "lost.",
        "TallyStrata", Answer::ok);
    bool cancel = false;
    Form_Unload(cancel);
    EXPECT_TRUE(cancel && !ended);
    afterEvent();
    files.room = SIZE_MAX;
    timePasses();
    EXPECT_TRUE(isThere(copyPath)) << "it goes on trying";
    EXPECT_EQ(frmMain.diskNotice, "");

    dialogs.paths = {std::nullopt};
    close(Answer::yes);
    EXPECT_TRUE(ended);
    EXPECT_TRUE(isThere(copyPath)) << "and written although no time had passed";
}

TEST_F(Recovery, sumsThatNoDataSheetHoldsAreCopiedAllTheSame)
{
    count('Q', 1);
    sheet.Count(1, 2) = 40000;
    frmMain.Text2[2].text = "40000";
    timePasses();
    crash();
    expectOffer("Untitled", "40001", Answer::yes);
    findRecoveryCopies();
    EXPECT_EQ(shown(2), 40000);
}
