#include "core/amending.h"
#include "core/editing.h"
#include "core/endings.h"
#include "core/program_test.h"
#include "core/snapshot.h"
#include "core/text_changes.h"
#include "files/save_sheet.h"
#include "tables/export_tables.h"
#include "tables/sheets_test.h"
#include "tables/table_exports.h"
#include "tables/table_form.h"
#include "tables/taxa_form.h"

namespace {

class TableForms : public ProgramTest {
protected:
    TableForms()
    {
        frmTable = {};
        frmTaxa = {};
    }
    void choose(std::optional<std::string> path) { dialogs.paths.push_back(std::move(path)); }
    void openTable(const std::string& text)
    {
        files.contents["/home/t.csv"] = text;
        choose("/home/t.csv");
        mnuNewFromTable_Click();
    }
    void openLists()
    {
        mnuStartAmend();
        mnuTaxaFromList_Click();
    }
    static void mnuStartAmend() { AmendingOnOff(0); }
    void expectLossQuestion(Answer answer)
    {
        dialogs.expect("This action will abort current data. Do you proceed?", "Caution!", answer);
    }
    static std::string remarks() { return frmTable.Text1.text; }
};

} // namespace

TEST_F(TableForms, exportsStandBesideTheSheetAndAreNoSave)
{
    static_cast<SheetTables&>(sheet) = exampleSheet("dallican_pollen");
    sheet.SheetPath = "/home/Dallican.v2.csv";
    frmMain.Combo2.text = sheet.SampleField(sheet.CurrentSample, 2);
    for (int slot = 1; slot <= taxonSlots; ++slot)
        frmMain.Text2[slot].text = decimalText(sheet.Count(sheet.CurrentSample, slot));
    const std::string title = frmMain.caption;
    frmMain.Command5[0].enabled = true;
    const std::pair<void (*)(), std::string> exports[] = {{mnuExportCounts_Click, "_counts.csv"},
                                                          {mnuExportTidy_Click, "_tidy.csv"},
                                                          {mnuExportTaxa_Click, "_taxa.csv"}};
    for (const auto& [handler, ending] : exports) {
        choose("/home/x" + ending);
        handler();
        EXPECT_EQ(dialogs.proposed, "/home/Dallican.v2" + ending);
    }
    EXPECT_EQ(files.contents.at("/home/x_counts.csv"), reference("dallican_pollen_counts.csv"));
    EXPECT_EQ(files.contents.at("/home/x_tidy.csv"), tidyTable(sheet, "Dallican.v2"));
    EXPECT_EQ(files.contents.at("/home/x_taxa.csv"), reference("dallican_pollen_taxa.csv"));
    EXPECT_EQ(sheet.SheetPath, "/home/Dallican.v2.csv");
    EXPECT_EQ(frmMain.caption, title);
    EXPECT_TRUE(frmMain.Command5[0].enabled);
    EXPECT_EQ(frmMain.notice, "'x_taxa.csv' written. The sheet itself is not saved by that.");

    choose("/home/dallican.V2.csv");
    dialogs.expect("'dallican.V2.csv' is the sheet's own file. Choose another name.", "Error");
    mnuExportCounts_Click();
    EXPECT_EQ(files.contents.count("/home/dallican.V2.csv"), 0U);
    files.unwritable.insert("/home/no.csv");
    choose("/home/no.csv");
    dialogs.expect("'no.csv' could not be written.", "Error");
    mnuExportTidy_Click();
    choose(std::nullopt);
    mnuExportTaxa_Click();
}

TEST_F(TableForms, allThreeGoIntoAFolderAndAskBeforeTheyWriteOver)
{
    choose("/out");
    mnuExportAll_Click(); // of a sheet without a file
    EXPECT_EQ(files.contents.at("/out/Untitled_counts.csv"), "sample,depth\r\n-9999,-9999\r\n");
    EXPECT_EQ(files.contents.size(), 3U);
    files.contents.erase("/out/Untitled_tidy.csv");
    files.contents["/out/Untitled_counts.csv"] = "old";
    for (const Answer answer : {Answer::no, Answer::yes}) {
        choose("/out");
        dialogs.expect(
            "Already there: 'Untitled_counts.csv', 'Untitled_taxa.csv'. Do you want to write over?",
            "Caution!", answer);
        mnuExportAll_Click();
        EXPECT_EQ(files.contents.at("/out/Untitled_counts.csv") == "old", answer == Answer::no);
    }
}

TEST_F(TableForms, aTableBecomesAnUnsavedSheet)
{
    openTable(reference("khil_phytoliths.csv"));
    EXPECT_TRUE(frmTable.visible);
    EXPECT_EQ(frmTable.Label1.caption, "t.csv: UTF-8, separated by commas, samples in its columns");
    EXPECT_EQ(frmTable.Label2.caption.substr(0, 24), "46 taxa in 16 samples, 1");
    EXPECT_EQ(frmTable.Label4[1].caption, "EKH-B-2005");
    EXPECT_EQ(frmTable.Label4[6].caption, "Elongate psilate");
    EXPECT_EQ(frmTable.Label4[8].caption, "98");
    EXPECT_EQ(remarks(), "Nothing is left out.");
    frmTable_Command1_Click();
    EXPECT_FALSE(frmTable.visible);
    const SheetTables expected = exampleSheet("khil_phytoliths");
    EXPECT_EQ(countsTable(sheet), countsTable(expected));
    EXPECT_EQ(sheet.SheetPath, "");
    EXPECT_EQ(frmMain.caption.substr(frmMain.caption.size() - 10), "[Untitled]");
    EXPECT_EQ(frmMain.Combo2.text, "EKH-C-18"); // the last sample is on show, as after opening a sheet
    EXPECT_TRUE(frmMain.Command5[0].enabled);
    EXPECT_TRUE(hasUnsavedWork());
    EXPECT_EQ(sheet.ActionText.back(), "(New from a table) t.csv");

    tap('Q'); // counts go on, and the first save asks for a name
    choose("/home/New.csv");
    SaveSheet(SaveMode::plain);
    EXPECT_EQ(sheet.SheetPath, "/home/New.csv");
    EXPECT_NE(files.contents.at("/home/New.csv").find("\"Elongate psilate\",79,98,49"), std::string::npos);
}

TEST_F(TableForms, theSheetInMemoryGoesOnlyAfterTheQuestion)
{
    tap('Q');
    openTable("sample,A,B\n1,2,3\n");
    expectLossQuestion(Answer::no);
    frmTable_Command1_Click();
    EXPECT_TRUE(frmTable.visible);
    EXPECT_EQ(shown(1), 1);
    EXPECT_FALSE(sheet.SheetPristine); // the next opening still asks
    frmTable_Command2_Click();
    EXPECT_FALSE(frmTable.visible);
    EXPECT_EQ(shown(1), 1);
    openTable("sample,A,B\n1,2,3\n");
    expectLossQuestion(Answer::yes);
    frmTable_Command1_Click();
    EXPECT_EQ(shown(1), 2);
    EXPECT_EQ(shown(2), 3);
}

TEST_F(TableForms, theOtherWayRoundAndWithoutTheRarest)
{
    dialogs.expect(
        "Nothing in the table tells whether its samples are its rows or its columns. Are they its rows?",
        "New from a table", Answer::no);
    openTable("x,A,B\nc,1,2\n");
    EXPECT_EQ(frmTable.Label2.caption, "1 taxon in 2 samples, 3 individuals");
    frmTable_Command3_Click();
    EXPECT_EQ(frmTable.Label2.caption, "2 taxa in 1 sample, 3 individuals");
    EXPECT_EQ(frmTable.Label4[6].caption, "A");

    std::string many = "taxon,10,20\n";
    for (int taxon = 1; taxon <= 140; ++taxon)
        many += "T" + decimalText(taxon) + ",1," + decimalText(taxon) + "\n";
    openTable(many);
    EXPECT_EQ(frmTable.Label3.caption, "The table has 140 taxa; a sheet holds 135.");
    EXPECT_FALSE(frmTable.Command1.enabled);
    EXPECT_EQ(frmTable.Check1.caption, "Leave out the 5 rarest taxa");
    frmTable_Check1_Click();
    EXPECT_TRUE(frmTable.Command1.enabled);
    EXPECT_FALSE(frmTable.Label3.visible);
    EXPECT_EQ(remarks(), "Left out as the rarest taxa, with 20 individuals in all: T1, T2, T3, T4, T5.\r\n");
    frmTable_Command3_Click(); // 2 taxa now
    EXPECT_FALSE(frmTable.Check1.visible);
}

TEST_F(TableForms, whatCannotBeTakenIsSaid)
{
    openTable("taxon,10,20\nA,1,12.5\n"); // the other way round it may still be one
    EXPECT_EQ(
        frmTable.Label3.caption,
        "Row 2, column 3 (cell C2, taxon \"A\", sample \"20\") holds \"12.5\", which is no count. Nothing "
        "can be taken.");
    EXPECT_EQ(frmTable.Label2.caption, "1 taxon in 2 samples");
    EXPECT_EQ(frmTable.Label4[2].caption + frmTable.Label4[7].caption, "20") << "heads alone";
    frmTable_Command1_Click();
    EXPECT_TRUE(frmTable.visible);
    frmTable_Command2_Click();
    dialogs.expect("'t.csv' cannot be taken. Row 3 has 2 fields instead of 3.", "Error");
    openTable("taxon,10,20\nA,1,12\nB,1\n");
    dialogs.expect("'t.csv' is no text. Save the table as CSV or text in the program that it comes from.",
                   "Error");
    openTable(std::string("PK\3\4\0\0", 6));
    dialogs.expect("'missing.csv' cannot be read, or is larger than 16 megabytes.", "Error");
    choose("/home/missing.csv");
    mnuNewFromTable_Click();
    EXPECT_FALSE(frmTable.visible);
}

TEST_F(TableForms, aListOfTaxaGoesIntoFreeRowsAndResetTakesItBack)
{
    tap('Q'); // row 1 is counted
    TakeSnapshot();
    openLists();
    EXPECT_FALSE(frmTaxa.Command1.enabled);
    frmTaxa_Text1_Edited("taxon,group\r\nPinus,Trees\r\nPoaceae,Herbs\r\n", 0);
    EXPECT_EQ(frmTaxa.Label1.caption, "2 names get a row each, told by its key:");
    EXPECT_EQ(frmTaxa.Text2.text, "Subtotal-1 is called Trees.\r\nSubtotal-2 is called Herbs.\r\n"
                                  "2: Pinus, Trees\r\n3: Poaceae, Herbs\r\n");
    const auto lines = sheet.ActionText.size();
    frmTaxa_Command1_Click();
    EXPECT_FALSE(frmTaxa.visible);
    EXPECT_EQ(sheet.ActionText.size(), lines + 1);
    EXPECT_EQ(sheet.ActionText.back(), "(Taxa from a list: 2)");
    EXPECT_EQ(frmMain.Text1[2].text, "Pinus");
    EXPECT_EQ(sheet.TaxonRecord[3].Subtotal2, "1");
    EXPECT_EQ(frmMain.Label2[1].caption, "Trees:");
    EXPECT_TRUE(hasUnsavedWork());
    AmendingOnOff(1);
    dialogs.expect("This action will abort all inputs after last saving. Do you proceed?", "Caution!",
                   Answer::yes);
    AbortCount();
    EXPECT_EQ(frmMain.Text1[2].text, "---");
    EXPECT_EQ(sheet.TaxonRecord[3].Subtotal2, "0");
}

TEST_F(TableForms, linesPastedIntoABoxAreOfferedAsAList)
{
    EXPECT_FALSE(Text1_Paste(1, "Pinus\nBetula\n")); // keys count now
    AmendingOnOff(0);
    EXPECT_FALSE(Text1_Paste(1, "Pinus\r\n"));
    EXPECT_FALSE(Text1_Paste(0, "Pinus\nBetula\n"));
    Text1_GotFocus(1);
    Text1_Edited(1, "Pi", 2);
    EXPECT_TRUE(Text1_Paste(1, "Pinus\nBetula\n"));
    EXPECT_EQ(frmTaxa.Text2.text, "2: Pinus\r\n3: Betula\r\n"); // what was typed stays
    frmTaxa_Command1_Click();
    leaveEditedBox();
    EXPECT_EQ(frmMain.Text1[1].text, "Pi");
    EXPECT_EQ(frmMain.Text1[3].text, "Betula");

    files.contents["/home/l.txt"] = "\xEF\xBB\xBF"
                                    "F\xC3\xA6x\n";
    mnuTaxaFromList_Click();
    choose("/home/l.txt");
    frmTaxa_Command3_Click();
    EXPECT_EQ(frmTaxa.Text2.text, "4: F\xE6x\r\n");
    frmTaxa_Command2_Click();
    EXPECT_EQ(frmMain.Text1[4].text, "---");
}
