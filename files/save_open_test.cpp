#include "core/sheet_name.h"
#include "core/snapshot.h"
#include "files/new_sheet.h"
#include "files/sheet_files_test.h"
#include "files/template_file.h"

#include <algorithm>

TEST_F(SheetFiles, theFirstSaveAsksForANameAndTheNextOnesKeepIt)
{
    tap('Q');
    dialogs.paths.push_back(std::nullopt);
    mnuSave_Click();
    EXPECT_TRUE(frmMain.Command5[0].enabled && sheet.SheetPath.empty() && sheet.SheetUnnamed);
    EXPECT_EQ(sheet.SaveResult, 2);
    EXPECT_TRUE(files.contents.empty());

    dialogs.paths.push_back("/home/cores/Lake1.csv");
    mnuSave_Click();
    EXPECT_EQ(frmMain.caption, "TallyStrata 3.2.5 - [Lake1]");
    EXPECT_EQ(frmMain.Text6.text, "/home/cores/Lake1.csv");
    EXPECT_EQ(lastAction(), "(Save as)");
    EXPECT_FALSE(frmMain.Command5[0].enabled || frmMain.mnuSave.enabled || sheet.SheetUnnamed);
    EXPECT_TRUE(frmMain.Command5[1].enabled && frmMain.mnuNext.enabled);
    EXPECT_EQ(sound.played.back(), Cue::SoundSave);
    EXPECT_EQ(field("/home/cores/Lake1.csv", 1, 3), "15/11/2026_(14:05:09)");
    EXPECT_EQ(field("/home/cores/Lake1.csv", 147, 5), "---") << "save as stamps nothing";

    tap('W');
    mnuSave_Click();
    EXPECT_EQ(lastAction(), "(Save)");
    EXPECT_EQ(field("/home/cores/Lake1.csv", 4, 5), "1");
    EXPECT_EQ(field("/home/cores/Lake1.csv", 147, 5), "15/11/2026 (14:05:09)");
    EXPECT_EQ(frmMain.Label14[2].caption, "15/11/2026 (14:05:09)");
    EXPECT_FALSE(frmMain.pointer == Pointer::hourglass || frmMain.ProgressBar1.visible);
}

TEST_F(SheetFiles, aCopyLeavesTheSheetItsNameAndItsUnsavedWork)
{
    makeSheet();
    tap('W');
    dialogs.paths.push_back("/home/copy.csv");
    mnuSaveCopy_Click();
    EXPECT_EQ(dialogs.proposed, "/home/Lake1_(15.11.2026).csv");
    EXPECT_EQ(field("/home/copy.csv", 1, 1), "/home/Lake1.csv");
    EXPECT_EQ(field("/home/copy.csv", 4, 6), "1");
    EXPECT_EQ(lastAction(), "(Save copy)");
    EXPECT_TRUE(frmMain.Command5[0].enabled && frmMain.mnuSave.enabled);
    EXPECT_EQ(sheet.SheetPath, "/home/Lake1.csv");
    RestoreSnapshot();
    EXPECT_EQ(shown(2), 0) << "a reset goes back to the sheet's own file";
    EXPECT_EQ(shown(1), 3);

    dialogs.paths.push_back("/home/Lake1.csv");
    mnuSaveCopy_Click();
    EXPECT_FALSE(frmMain.Command5[0].enabled || frmMain.mnuSave.enabled)
        << "written over the sheet's own file";
}

TEST_F(SheetFiles, everyFailedWriteIsToldAndCostsNothing)
{
    makeSheet();
    tap('W');
    const std::string before = files.contents.at("/home/Lake1.csv");
    const std::function<void()> faults[] = {
        [this] {
            files.unwritable.insert({"/home/Lake1.csv", "/home/other.csv"});
        },
        [this] { files.room = 10; },
        [] { sheet.Count(1, 5) = 40000; },
    };
    const std::function<void()> saves[] = {
        [] { mnuSave_Click(); },
        [this] { saveAs("/home/other.csv"); },
        [this] {
            dialogs.paths.push_back("/home/other.csv");
            mnuSaveCopy_Click();
        },
    };
    for (const auto& fault : faults) {
        fault();
        for (const auto& save : saves) {
            sheet.SaveResult = 1;
            dialogs.expect(busy, "Error");
            save();
            dialogs.paths.clear(); // totals are looked at before any dialog
            EXPECT_EQ(sheet.SaveResult, 2);
            EXPECT_EQ(files.contents.at("/home/Lake1.csv"), before);
            EXPECT_EQ(files.contents.count("/home/other.csv"), 0U);
            EXPECT_TRUE(frmMain.Command5[0].enabled && frmMain.mnuSave.enabled);
            EXPECT_EQ(sheet.SheetPath + frmMain.caption, "/home/Lake1.csvTallyStrata 3.2.5 - [Lake1]");
            EXPECT_EQ(shown(2), 1);
            EXPECT_FALSE(frmMain.pointer == Pointer::hourglass || frmMain.ProgressBar1.visible);
        }
        files.unwritable.clear();
        files.room = SIZE_MAX;
    }
    EXPECT_NE(frmMain.notice.find("more than 32767 individuals"), std::string::npos);
    sheet.Count(1, 5) = 0;
    files.closeFails = true;
    dialogs.expect(busy, "Error");
    mnuSave_Click();
    EXPECT_TRUE(frmMain.Command5[0].enabled);
    RestoreSnapshot();
    EXPECT_EQ(shown(2), 0) << "no failed save becomes what a reset goes back to";
}

TEST_F(SheetFiles, aNameWithoutAPointIsRefusedAfterTheFileWasMade)
{
    tap('Q');
    dialogs.expect(busy, "Error");
    saveAs("/home/lake");
    EXPECT_EQ(files.contents.at("/home/lake"), "");
    EXPECT_TRUE(sheet.SheetPath.empty());
    EXPECT_EQ(baseName("C:\\Cores\\Lake.1.csv"), "Lake.1");
    EXPECT_EQ(baseName("/v1.2/lake"), "v1");
}

TEST_F(SheetFiles, theSaveKeySavesAndDoesNothingWhilePercentagesShow)
{
    sheet.KeySetting[rowSave].Code = "187";
    makeSheet();
    tap('W');
    sheet.KeysActive = false;
    tap(187);
    EXPECT_EQ(field("/home/Lake1.csv", 4, 6), "0");
    sheet.KeysActive = true;
    tap(187);
    EXPECT_EQ(field("/home/Lake1.csv", 4, 6), "1");
}

TEST_F(SheetFiles, openingShowsTheLastSampleAndForgetsTheSheetBefore)
{
    makeSheet();
    const std::string saved = files.contents.at("/home/Lake1.csv");
    sheet = SheetState();
    frmMain = MainScreen();
    sheet.SoundOn = true;
    sheet.SheetUnnamed = false;
    sheet.DiversityCurve = {0, 10, 20};
    open("/home/Lake1.csv");
    for (const int point : sheet.DiversityCurve)
        EXPECT_EQ(point, 0) << "of the sheet before";
    EXPECT_EQ(sheet.CurrentSample, 2);
    EXPECT_EQ(shown(1), 3);
    EXPECT_EQ(frmMain.Text3[0].text, "3");
    EXPECT_EQ(frmMain.Label4.caption, "2/2");
    EXPECT_EQ(frmMain.Combo2.items, (std::vector<std::string>{"10", "20"}));
    EXPECT_EQ(frmMain.Combo2.text + frmMain.Text1[0].text, "2020");
    EXPECT_EQ(frmMain.Text4.text, "note 2");
    EXPECT_EQ(frmMain.caption, "TallyStrata 3.2.5 - [Lake1]");
    EXPECT_EQ(lastAction(), "(Open) /home/Lake1.csv");
    EXPECT_TRUE(frmMain.mnuDiagramStyles.enabled && frmMain.Command5[1].enabled);
    EXPECT_FALSE(frmMain.Command5[0].enabled || frmMain.mnuSave.enabled || sheet.NamesNotNumeric);
    EXPECT_EQ(files.contents.count(folder + "Master_back_up.csv"), 1U);
    EXPECT_TRUE(sheet.SheetPristine && sheet.FreshSheet);

    // The untouched sheet is rewritten as it was but for the time of writing.
    sheet.SheetPath = "/home/again.csv";
    mnuSave_Click();
    std::string again = files.contents.at("/home/again.csv");
    EXPECT_EQ(again.substr(again.find("\r\n")), saved.substr(saved.find("\r\n")));

    tap('Q');
    EXPECT_EQ(stored(1), 4);
    tap(8);
    tap(8); // nothing of the sheet before
    EXPECT_EQ(stored(1), 3);
}

TEST_F(SheetFiles, openingAsksBeforeWorkIsLost)
{
    const std::string question = "This action will abort current data. Do you proceed?";
    makeSheet();
    tap('W');
    dialogs.expect(question, "Caution!", Answer::no);
    mnuOpen_Click();
    EXPECT_EQ(shown(2), 1);
    EXPECT_TRUE(sheet.SheetPristine);
    EXPECT_FALSE(sheet.FreshSheet);
    dialogs.paths.push_back(std::nullopt); // asks nothing now
    mnuOpen_Click();
    EXPECT_EQ(shown(2), 1);

    tap('W');
    dialogs.expect(question, "Caution!", Answer::yes);
    dialogs.paths.push_back(std::nullopt);
    mnuOpen_Click();
    EXPECT_EQ(shown(2), 0) << "Yes goes back to the last save";
    EXPECT_EQ(sheet.UndoStack[0].slot, 0);

    frmMain.mnuOpen.enabled = false;
    openDropped("/home/Lake1.csv"); // dropped while it may not be opened
    EXPECT_EQ(lastAction().substr(0, 6), "2: ---");
}

TEST_F(SheetFiles, whatCannotBeReadIsSilentAndLeavesASheetToCountIn)
{
    makeSheet();
    sheet.SheetPristine = true;
    open("/home/missing.csv");
    files.contents["/home/empty.csv"] = "";
    open("/home/empty.csv");
    files.contents["/home/README"] = "no data sheet";
    open("/home/README");
    EXPECT_EQ(shown(1), 3) << "none of them cost a count";
    EXPECT_EQ(sheet.SheetPath + frmMain.caption, "/home/Lake1.csvTallyStrata 3.2.5 - [Lake1]");

    const std::string whole = files.contents.at("/home/Lake1.csv");
    for (const double part : {0.01, 0.05, 0.5, 0.9}) {
        files.contents["/home/half.csv"] =
            whole.substr(0, static_cast<std::size_t>(part * double(whole.size())));
        sheet.SheetPristine = true;
        open("/home/half.csv");
        EXPECT_EQ(sheet.SheetPath, "/home/half.csv");
        EXPECT_GE(sheet.CurrentSample, 1);
        for (int slot = 1; slot <= taxonSlots; ++slot)
            EXPECT_EQ(shown(slot), stored(slot)) << part;
        tap('Q');
        EXPECT_EQ(shown(1), stored(1));
    }
    EXPECT_EQ(frmMain.caption, "TallyStrata 3.2.5 - [half]");
    RestoreSnapshot();
    EXPECT_EQ(shown(1), stored(1));
    EXPECT_LE(shown(1), 3) << "a reset brings nothing of the sheet before";
}

TEST_F(SheetFiles, aSheetWithDisorderedKeyIndexesCanBeSavedAndOpenedAgain)
{
    makeSheet();
    sheet.TaxonRecord[9].Name = "Ulmus";
    sheet.Count(2, 9) = 4;
    frmMain.Text2[9].text = "4";
    mnuSave_Click();
    const std::string whole = files.contents.at("/home/Lake1.csv");
    std::string& swapped = files.contents["/home/half.csv"] = whole;
    swapped.replace(swapped.find("\r\n1,0"), 4, "\r\n135,");
    swapped.erase(swapped.size() / 2);
    std::string& nameless = files.contents["/home/nameless.csv"] = whole;
    nameless.replace(nameless.find("\r\n9,0"), 4, "\r\nx,");
    for (const char* path : {"/home/half.csv", "/home/nameless.csv"}) {
        sheet.SheetPristine = true;
        open(path);
        tap('Q', 2);
        const int counted = stored(1);
        if (sheet.NotItsFile)
            dialogs.paths.push_back(path);
        mnuSave_Click();
        sheet.SheetPristine = true;
        open(path);
        EXPECT_EQ(stored(1), counted) << path;
        EXPECT_EQ(sheet.SheetPath, path);
    }
    EXPECT_EQ(frmMain.Text1[9].text, "Ulmus")
        << "the one row without a key index gets the one that is missing";
    EXPECT_EQ(shown(9), 4);
    EXPECT_EQ(frmMain.Combo2.text, "20");
}

TEST_F(SheetFiles, aRepeatedKeyIndexIsToldAndGivesAFreshSheet)
{
    makeSheet();
    std::string& text = files.contents["/home/twice.csv"] = files.contents.at("/home/Lake1.csv");
    text.replace(text.find("\r\n9,0"), 5, "\r\n4,0");
    sheet.SheetPristine = true;
    frmMain.mnuItalic.checked = false;
    dialogs.expect("Same key index (4) is being used more than once.", "Error");
    const std::size_t logged = sheet.ActionText.size();
    open("/home/twice.csv");
    EXPECT_EQ(frmMain.caption, "TallyStrata 3.2.5 - [Untitled]");
    EXPECT_TRUE(sheet.SheetPath.empty() && sheet.SheetPristine && !sheet.FreshSheet && sheet.SoundOn);
    EXPECT_FALSE(frmMain.mnuItalic.checked || frmMain.ProgressBar1.visible);
    EXPECT_EQ(sheet.ActionText.size(), logged);
    EXPECT_EQ(sheet.SampleCount, 1);
    EXPECT_EQ(shown(1), 0);
}

TEST_F(SheetFiles, aTemplateHoldsTheTaxaAndIsNotOverwrittenUnasked)
{
    makeSheet();
    sheet.TaxonRecord[1].Name = "Pinus";
    std::swap(sheet.KeyIndexOfRow[1], sheet.KeyIndexOfRow[2]);
    dialogs.paths.push_back("/home/pollen.csv");
    const std::string action = lastAction();
    mnuTemplate_Click();
    const std::string& text = files.contents.at("/home/pollen.csv");
    EXPECT_EQ(std::count(text.begin(), text.end(), '\n'), 147);
    EXPECT_EQ(field("/home/pollen.csv", 4, 4), "Pinus") << "the order of the rows is kept";
    EXPECT_EQ(field("/home/pollen.csv", 147, 4), "All total");
    EXPECT_EQ(lastAction() + sheet.SheetPath, action + "/home/Lake1.csv");
    files.unwritable.insert("/home/locked.csv");
    for (const auto& path : {std::optional<std::string>("/home/locked.csv"), std::optional<std::string>()}) {
        dialogs.paths.push_back(path);
        mnuTemplate_Click(); // without a message
    }

    sheet.SheetPristine = true;
    open("/home/pollen.csv");
    EXPECT_TRUE(sheet.TemplateOpened);
    EXPECT_EQ(frmMain.Label4.caption, "1/0");
    EXPECT_EQ(sheet.SampleCount, 1);
    EXPECT_EQ(frmMain.Text1[1].text, "Pinus");
    EXPECT_EQ(frmMain.Text3[0].text, "0");
    frmSiteName_Command3_Click();
    dialogs.paths.push_back(std::nullopt);
    mnuOpen_Click(); // a change of mind does not make the template the sheet's file
    EXPECT_FALSE(sheet.TemplateOpened);
    tap('Q');
    dialogs.paths.push_back("/home/Lake2.csv");
    mnuSave_Click();
    EXPECT_EQ(dialogs.proposed, "/home/pollen.csv");
    EXPECT_EQ(sheet.SheetPath, "/home/Lake2.csv");
    mnuSave_Click(); // without a dialog

    const std::string pollen = files.contents.at("/home/pollen.csv");
    sheet.SheetPristine = true;
    open("/home/pollen.csv");
    saveAs("/home/pollen.csv"); // as the user wants it
    EXPECT_EQ(files.contents.at(folder + "Before_pollen.csv"), pollen);
}

TEST_F(SheetFiles, backupsGoToTheMasterFirstAndThenRoundTheRing)
{
    sheet.BackupSlot = 99;
    files.unwritable.insert(folder + "Master_back_up.csv");
    AutoBackup();
    EXPECT_EQ(sheet.BackupSlot, 99) << "a master copy that failed is tried again";
    files.unwritable.clear();
    AutoBackup();
    EXPECT_EQ(files.contents.size(), 1U);
    const auto line = [this](int slot) {
        return field(folder + "Auto_back_up_(" + decimalText(slot) + ").csv", 3, 5);
    };
    for (int hundred = 1; hundred <= 11; ++hundred)
        tap('Q', 100);
    EXPECT_EQ(files.contents.size(), 11U);
    EXPECT_EQ(line(0), "1100") << "the eleventh over the first";
    EXPECT_EQ(line(9), "1000");
    const std::string text = files.contents.at(folder + "Auto_back_up_(1).csv");
    EXPECT_NE(text.find("\r\n\"1\",\"0\",\"0\",\"---\",\"200\"\r\n"), std::string::npos)
        << "every field is text";
    EXPECT_EQ(std::count(text.begin(), text.end(), '\n'), 144);

    files.unwritable.insert(folder + "Auto_back_up_(1).csv");
    tap('Q', 100); // quiet, and its turn is over
    EXPECT_EQ(sheet.BackupSlot, 1);
    EXPECT_EQ(files.contents.at(folder + "Auto_back_up_(1).csv"), text);
}
