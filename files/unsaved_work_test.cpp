// Where another sheet takes the place of one with unsaved work.

#include "files/data_sheet_reader.h"
#include "files/kept_work.h"
#include "files/open_sheet.h"
#include "files/recovery_program_test.h"

namespace {

constexpr const char* toAbort = "This action will abort current data. Do you proceed?";

class ReplacedSheet : public RecoveryProgram {
protected:
    ReplacedSheet()
    {
        count('Q', 2);
        saveAs("/cores/Lake.csv");
        count('W', 3); // not saved
    }
    void open(const std::optional<std::string>& path)
    {
        dialogs.paths.push_back(path);
        mnuOpen_Click();
        afterEvent();
    }
    std::string kept()
    {
        const auto names = backups("Unsaved_work_");
        return names.size() == 1 ? files.contents["/program/References/Back up files/" + names[0]] : "";
    }
    int keptCount(int slot)
    {
        SheetTables tables;
        return readDataSheet(kept(), tables) ? tables.Count(1, slot) : -1;
    }
};

} // namespace

TEST_F(ReplacedSheet, goesWithoutATraceIfTheUserSaidSo)
{
    dialogs.expect(toAbort, "Caution!", Answer::yes);
    open("/cores/Lake.csv");
    EXPECT_EQ(shown(2), 0);
    EXPECT_TRUE(backups("Unsaved_work_").empty());
}

TEST_F(ReplacedSheet, isKeptIfTheSheetThatWasToComeDidNot)
{
    dialogs.expect(toAbort, "Caution!", Answer::yes);
    open(std::nullopt);
    EXPECT_EQ(shown(2), 0) << "back to what was saved";
    EXPECT_EQ(keptCount(2), 3);
    EXPECT_EQ(frmMain.notice,
              "What was not saved is kept among the back up files: Unsaved_work_(15.11.2026 14.05.09).csv");
}

TEST_F(ReplacedSheet, isKeptWhereOpeningAsksNothing)
{
    dialogs.expect(toAbort, "Caution!", Answer::no);
    mnuOpen_Click();
    open(std::nullopt);
    EXPECT_EQ(shown(2), 3);
    EXPECT_EQ(kept(), "") << "it is still there";
    open("/cores/Lake.csv");
    EXPECT_EQ(shown(2), 0);
    EXPECT_EQ(keptCount(2), 3);
}

TEST_F(ReplacedSheet, isKeptIfAFileWasDroppedOnIt)
{
    dialogs.expect(toAbort, "Caution!", Answer::yes);
    openDropped("/cores/Lake.csv");
    EXPECT_EQ(keptCount(2), 3);
}

TEST_F(ReplacedSheet, isAskedAboutIfItCanBeKeptNowhere)
{
    dialogs.expect(toAbort, "Caution!", Answer::no);
    mnuOpen_Click();
    files.room = 10;
    dialogs.expect(toAbort, "Caution!", Answer::no);
    mnuOpen_Click();
    EXPECT_EQ(shown(2), 3);
}

TEST_F(ReplacedSheet, isNotWrittenOverByWhatTheQuestionsLeaveOfIt)
{
    timePasses();
    int rounds = 0;
    dialogs.whenOpened = [&] { // time goes on below a dialog
        ++rounds;
        JournalTimer_Timer();
        PauseTimer_Timer();
        RecoveryTimer_Timer();
        const auto left = understandLeftWork(files.contents[recoveryCopyPath(1)], std::nullopt);
        ASSERT_TRUE(left);
        EXPECT_EQ(left->individuals, 5);
    };
    dialogs.expect(toAbort, "Caution!", Answer::yes);
    open("/cores/Lake.csv");
    EXPECT_EQ(rounds, 2);
}

TEST_F(ReplacedSheet, keepsTenOfThemAtMost)
{
    for (int i = 0; i < 12; ++i)
        ASSERT_TRUE(keepUnsavedWork());
    pruneUnsavedWork();
    EXPECT_EQ(backups("Unsaved_work_").size(), 10U);
}
