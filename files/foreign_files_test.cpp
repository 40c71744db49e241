// Files that are not what the program wrote last: templates, tables of other programs, broken files, files
// that another program has changed. What they may cost, and what is asked and said.

#include "core/amending.h"
#include "core/editing.h"
#include "files/new_sheet.h"
#include "files/sheet_files_test.h"
#include "files/template_file.h"

#include <algorithm>

TEST_F(SheetFiles, aTemplateBringsNoSampleOfTheSheetBefore)
{
    makeSheet();
    dialogs.paths.push_back("/home/pollen.csv");
    mnuTemplate_Click();
    EXPECT_EQ(dialogs.saveTitle + ": " + dialogs.proposed, "Save template: Template.csv");
    sheet.SheetPristine = true;
    open("/home/pollen.csv");
    frmSiteName_Command3_Click();
    tap('Q');
    EXPECT_EQ(frmMain.Text1[0].text + frmMain.Combo2.text, "-9999-9999");
    saveAs("/home/Lake2.csv");
    EXPECT_EQ(field("/home/Lake2.csv", 2, 5), "-9999");

    // A file that ends before its first sample has none either.
    sheet.SheetPristine = true;
    open("/home/Lake1.csv");
    std::string& cut = files.contents["/home/cut.csv"] = files.contents.at("/home/pollen.csv");
    cut.resize(cut.size() / 2);
    sheet.SheetPristine = true;
    open("/home/cut.csv");
    EXPECT_EQ(sheet.SampleField(1, 2) + frmMain.Combo2.text, "-9999-9999");
}

TEST_F(SheetFiles, namesThatWereEditedAreWorkThatOpeningAsksFor)
{
    const std::string question = "This action will abort current data. Do you proceed?";
    makeSheet();
    sheet.SheetPristine = true;
    open("/home/Lake1.csv");
    AmendingOnOff(0);
    AmendingOnOff(1);
    EXPECT_TRUE(frmMain.Command5[0].enabled);
    dialogs.paths.push_back(std::nullopt);
    mnuOpen_Click(); // nothing was edited

    AmendingOnOff(0);
    Text1_GotFocus(1);
    Text1_Edited(1, "Pinus", 5);
    AmendingOnOff(1);
    EXPECT_TRUE(sheet.SheetPristine);
    dialogs.expect(question, "Caution!", Answer::no);
    mnuOpen_Click();
    dialogs.paths.push_back(std::nullopt);
    mnuOpen_Click(); // the one that follows a No is silent
    EXPECT_EQ(frmMain.Text1[1].text, "Pinus");
    AmendingOnOff(0);
    Text1_GotFocus(1);
    Text1_Edited(1, "Picea", 5);
    AmendingOnOff(1);
    dialogs.expect(question, "Caution!", Answer::no);
    mnuOpen_Click();
    mnuSave_Click();
    dialogs.paths.push_back(std::nullopt);
    mnuOpen_Click(); // all is saved
}

TEST_F(SheetFiles, aNewSheetKeepsTheHistoryThatCanBeSaved)
{
    tap('Q');
    dialogs.expect("This action will abort current data. Do you proceed?", "Caution!", Answer::yes);
    mnuNew_Click();
    EXPECT_TRUE(frmMain.mnuSaveHistory.enabled);
    frmSiteName.Text1.text = "12,5";
    frmSiteName_Command1_Click();
    EXPECT_EQ(frmMain.Combo2.text, "12,5");
    EXPECT_EQ(frmMain.notice, "'12,5' is no number, so the diagram has no depth scale: write 12.5.");
}

namespace {

class ForeignFiles : public SheetFiles {
protected:
    ForeignFiles()
    {
        makeSheet();
        tap('Q');
        mnuSave_Click();
        whole = files.contents.at("/home/Lake1.csv");
    }
    void openAs(const std::string& path, const std::string& text)
    {
        files.contents[path] = text;
        frmMain.Command5[0].enabled = frmMain.mnuSave.enabled = false;
        sheet.SheetPristine = true;
        open(path);
    }
    std::string replaced(const std::string& what, const std::string& with) const
    {
        std::string text = whole;
        for (std::size_t at = text.find(what); at != std::string::npos;
             at = text.find(what, at + with.size()))
            text.replace(at, what.size(), with);
        return text;
    }
    std::string whole; ///< two samples, four grains of the first taxon in the second
};

const std::string wasItATable = "Was it a plain table? File > New from a table";

} // namespace

TEST_F(ForeignFiles, whatWasNotReadIsToldAtTheFootUntilTheSheetIsTouched)
{
    const struct {
        const char* path;
        std::string text;
        std::string told;
        bool inPart;
    } cases[] = {
        {"/home/a.csv", "Depth,Pinus,Betula\n10,5,6\n20,7,8\n",
         "line 1: 3 fields instead of 4; nothing of it was taken. " + wasItATable, true},
        {"/home/b.csv", "Depth,Pinus,Betula,Alnus,Salix\n10,5,6,7,8\n",
         "line 1: no first line of a data sheet; nothing of it was taken. " + wasItATable, true},
        {"/home/c.csv", replaced(",", ";"),
         "line 1: 1 field instead of 4; nothing of it was taken. Semicolons stand between its fields: save "
         "it "
         "with commas. " +
             wasItATable,
         true},
        {"/home/d.csv", replaced("\"10\",\"20\"", "\"10\",\"20\",\"500\""),
         "line 2: 7 fields instead of 6; nothing of it was taken. " + wasItATable, true},
        {"/home/e.csv", replaced("0,4\r\n", "0,4,500\r\n"),
         "line 3: 7 fields instead of 6; nothing of it was taken. " + wasItATable, true},
        {"/home/f.csv", replaced("\r\n60,0,0,\"---\",0,0", "\r\n60,0,0,Salix, small,0,500"),
         "line 62: 7 fields instead of 6; nothing from there on was taken.", true},
        {"/home/g.csv", whole.substr(0, whole.find("\r\n40,0,0")),
         "line 41: the file ends there; what should follow is missing.", true},
        {"/home/h.csv", replaced("\r\n40,0,0", "\r\n400,0,0"),
         "line 42: a number is out of range; nothing from there on was taken.", true},
        {"/home/i.csv", "PK\x03\x04 and so on",
         "This is a spreadsheet's own format; nothing of it was taken. Save it there as CSV.", true},
        {"/home/j.csv", whole, "", false},
    };
    for (const auto& [path, text, told, inPart] : cases) {
        openAs(path, text);
        EXPECT_EQ(frmMain.readingNotice, told);
        EXPECT_EQ(sheet.NotItsFile, inPart) << path;
        EXPECT_EQ(sheet.SheetPath, path);
        EXPECT_EQ(shown(1), stored(1)) << path;
    }
    openAs("/home/f.csv", files.contents["/home/f.csv"]);
    EXPECT_EQ(shown(1), 4) << "what stands before the fault was read";
    EXPECT_EQ(sheet.TaxonRecord[60].Name + sheet.TaxonRecord[61].Name, "------");
}

TEST_F(ForeignFiles, anyTouchOfTheSheetEndsTheLineAtTheFoot)
{
    const std::string cut = whole.substr(0, whole.find("\r\n40,0,0"));
    const std::function<void()> touches[] = {
        [this] { tap('Q'); },
        [] {
            AmendingOnOff(0);
            Text1_Edited(3, "Alnus", 5);
        },
        [] {
            AmendingOnOff(0);
            Text4_Edited("Sand", 4);
        },
        [this] {
            dialogs.expect("This action will abort current data. Do you proceed?", "Caution!", Answer::yes);
            mnuNew_Click();
        },
        [this] { openAs("/home/Lake1.csv", whole); },
    };
    for (const auto& touch : touches) {
        sheet.Modifying = false;
        openAs("/home/cut.csv", cut);
        down(shift1);
        up(shift1);
        ASSERT_FALSE(frmMain.readingNotice.empty()) << "no touch yet";
        touch();
        EXPECT_EQ(frmMain.readingNotice, "");
    }
}

TEST_F(ForeignFiles, aFileThatWasReadInPartIsNotTheSheetsAndIsKeptBeforeItIsWrittenOver)
{
    const std::string semicolons = replaced(",", ";");
    openAs("/home/core.csv", semicolons);
    tap('Q');
    dialogs.paths.push_back(std::nullopt);
    mnuSave_Click(); // by way of the dialog, cancelled
    EXPECT_EQ(files.contents.at("/home/core.csv"), semicolons);
    EXPECT_TRUE(frmMain.Command5[0].enabled);

    dialogs.paths.push_back("/home/core.csv");
    files.unwritable.insert(folder + "Before_core.csv");
    dialogs.expect(busy, "Error");
    mnuSave_Click();
    EXPECT_EQ(files.contents.at("/home/core.csv"), semicolons) << "what cannot be kept is not written over";
    EXPECT_NE(frmMain.notice.find("save under another name"), std::string::npos);

    files.unwritable.clear();
    dialogs.paths.push_back("/home/core.csv");
    mnuSave_Click();
    EXPECT_EQ(files.contents.at(folder + "Before_core.csv"), semicolons);
    EXPECT_EQ(field("/home/core.csv", 3, 5), "1");
    tap('Q');
    mnuSave_Click(); // now it is the sheet's file
    EXPECT_EQ(field("/home/core.csv", 3, 5), "2");
    EXPECT_EQ(files.contents.count(folder + "Before_core_(2).csv"), 0U);

    // Another sheet, or a copy, saved over such a file keeps it too, each under a name of its own.
    for (const char* table : {"a,b\n1,2\n", "c,d\n3,4\n", "a,b\n1,2\n"}) {
        openAs("/home/Lake1.csv", whole);
        files.contents["/home/core.csv"] = table;
        saveAs("/home/core.csv");
    }
    EXPECT_EQ(files.contents.at(folder + "Before_core_(2).csv"), "a,b\n1,2\n");
    EXPECT_EQ(files.contents.at(folder + "Before_core_(3).csv"), "c,d\n3,4\n");
    EXPECT_EQ(files.contents.count(folder + "Before_core_(4).csv"), 0U) << "each content once";
}

TEST_F(ForeignFiles, aPercentageTableIsRecognised)
{
    sheet.Count(1, 2) = 5;
    dialogs.paths.push_back("/home/percent.csv");
    mnuPercentAll_Click();
    EXPECT_EQ(dialogs.saveTitle, "Save percentage table");
    const std::string table = files.contents.at("/home/percent.csv");
    openAs("/home/percent.csv", table);
    EXPECT_EQ(frmMain.readingNotice,
              "This is a percentage table: what stands in the cells are rounded percentages, not counts.");
    tap('Q');
    dialogs.paths.push_back("/home/percent.csv");
    mnuSave_Click();
    EXPECT_EQ(files.contents.at(folder + "Before_percent.csv"), table);
}

TEST_F(ForeignFiles, aFileThatAnotherProgramHasChangedIsNotWrittenOverUnasked)
{
    const std::string question =
        "'Lake1.csv' has been changed by another program. Do you want to write over it?";
    const std::string theirs = replaced("note 2", "their note");
    for (const bool opened : {false, true}) {
        if (opened)
            openAs("/home/Lake1.csv", whole);
        files.contents["/home/Lake1.csv"] = theirs;
        tap('Q');
        dialogs.expect(question, "Caution!", Answer::no);
        mnuSave_Click();
        EXPECT_EQ(files.contents.at("/home/Lake1.csv"), theirs);
        EXPECT_TRUE(frmMain.Command5[0].enabled && sheet.SaveResult == 2);
        dialogs.expect(question, "Caution!", Answer::yes);
        mnuSave_Click();
        EXPECT_EQ(field("/home/Lake1.csv", 3, 6), "5");
        EXPECT_EQ(files.contents.at(folder + "Before_Lake1.csv"), theirs);
        tap('Q');
        mnuSave_Click(); // nobody else was at it
    }
    files.contents.erase("/home/Lake1.csv");
    tap('Q');
    mnuSave_Click(); // one that is gone holds nothing
    EXPECT_EQ(field("/home/Lake1.csv", 3, 6), "7");
}
