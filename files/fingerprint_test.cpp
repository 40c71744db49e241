#include "files/fingerprint.h"

#include "core/program_test.h"
#include "files/open_sheet.h"
#include "files/save_sheet.h"

namespace {

class KnownFile : public ProgramTest {
protected:
    const std::string lake = "/home/Lake.csv";

    void saveAs(const std::string& path)
    {
        dialogs.paths.push_back(path);
        mnuSaveAs_Click();
    }
};

} // namespace

TEST_F(KnownFile, isTheOneLastReadOrWritten)
{
    EXPECT_FALSE(sheetFileHasChanged()) << "no file yet";
    tap('Q');
    saveAs(lake);
    EXPECT_FALSE(sheetFileHasChanged());
    files.contents[lake].back() = ' '; // another program has been at it
    EXPECT_TRUE(sheetFileHasChanged());
    tap('Q');
    dialogs.expect("'Lake.csv' has been changed by another program. Do you want to write over it?",
                   "Caution!", Answer::yes);
    SaveSheet(SaveMode::plain);
    EXPECT_FALSE(sheetFileHasChanged());
    const std::string elsewhere = files.contents[lake];

    dialogs.paths = {"/home/Copy.csv"};
    SaveSheet(SaveMode::copy);
    EXPECT_FALSE(sheetFileHasChanged()) << "a copy is another file";
    files.contents[lake] = elsewhere + "\r\n";
    sheet.SheetPristine = true;
    dialogs.paths = {lake};
    mnuOpen_Click();
    EXPECT_FALSE(sheetFileHasChanged()) << "what it holds now has just been read";
    files.contents.erase(lake);
    EXPECT_FALSE(sheetFileHasChanged()) << "nothing is there to be written over";
}

TEST_F(KnownFile, isWhatAFailedWriteHasLeft)
{
    tap('Q');
    saveAs(lake);
    const auto failing = [&] {
        dialogs.expect("The file is being used by another software. Please close the file and try again.",
                       "Error");
    };
    files.cutShort = {lake, "/home/Other.csv"};
    failing();
    SaveSheet(SaveMode::plain);
    EXPECT_FALSE(sheetFileHasChanged()) << "cut short by this program itself";
    failing();
    saveAs("/home/Other.csv");
    EXPECT_FALSE(sheetFileHasChanged()) << "the sheet has kept its name";
}
