#include "core/basis_members.h"
#include "core/program_test.h"
#include "core/text_changes.h"
#include "sheet/cell_grid.h"
#include "sheet/subtotals.h"
#include "sheet/summary.h"

namespace {

class Subtotals : public ProgramTest {
protected:
    Subtotals()
    {
        setText1(1, "Pinus");
        setText1(2, "Poaceae");
        tap('Q', 3);
        tap('W', 5);
        frmMain.Command5[0].enabled = frmMain.mnuSave.enabled = false;
        sheet.SheetPristine = true;
    }
    static std::string flags(int slot)
    {
        return sheet.TaxonRecord[slot].Subtotal1 + sheet.TaxonRecord[slot].Subtotal2;
    }
    static std::string sums()
    {
        return frmMain.Text3[0].text + " " + frmMain.Text3[1].text + " " + frmMain.Text3[2].text;
    }
};

} // namespace

TEST_F(Subtotals, whatIsTickedCountsAtOnceInTheGroupOnShow)
{
    for (int row = 1; row <= keysPerLayer; ++row)
        sheet.KeySetting[row].Number = decimalText(46 - row);
    ArrangeTaxonCells();
    mnuSubtotal_Click();
    EXPECT_FALSE(isMainEnabled());
    EXPECT_EQ(frmSubtotal.Check1[1].caption + "|" + frmSubtotal.Check1[135].caption, "Pinus|135: ---");
    EXPECT_EQ(frmSubtotal.Check1[46].left, cellGrid().CellLeft[45]) << "where the taxon stands on the sheet";

    frmSubtotal_Check1_Click(1);
    EXPECT_EQ(sums(), "8 3 0");
    frmSubtotal_Option1_Click(2);
    EXPECT_FALSE(frmSubtotal.Check1[1].checked || frmSubtotal.Option1[1].selected);
    frmSubtotal_Command2_Click(1);
    EXPECT_EQ(flags(1) + flags(2) + flags(135), "110101") << "both groups, and slots without a taxon";
    EXPECT_EQ(sums(), "8 3 8");
    frmSubtotal_Check1_Click(2);
    EXPECT_EQ(sums(), "8 3 3");
    EXPECT_FALSE(sheet.TaxonRecord[0].Subtotal1 == "1") << "row 0 holds sums, no flags";

    frmMain.Option1[0].selected = false;
    frmMain.Option1[1].selected = true;
    frmSubtotal_Command1_Click();
    EXPECT_TRUE(frmMain.Text1[1].underline && isMainEnabled());
    EXPECT_FALSE(frmMain.Text1[2].underline || frmSubtotal.visible || sheet.SheetPristine);
    EXPECT_TRUE(frmMain.Command5[0].enabled) << "members are part of the sheet: work to save";
}

TEST_F(Subtotals, cancelGivesBothGroupsTheirMembersBack)
{
    sheet.TaxonRecord[1].Subtotal1 = sheet.TaxonRecord[2].Subtotal2 = "1";
    mnuSubtotal_Click();
    EXPECT_TRUE(frmSubtotal.Check1[1].checked);
    frmSubtotal_Command2_Click(0);
    frmSubtotal_Option1_Click(2);
    frmSubtotal_Command2_Click(1);
    frmSubtotal_Command3_Click();
    EXPECT_EQ(flags(1) + flags(2) + flags(3), "100100");
    EXPECT_EQ(sums(), "8 3 5");
    EXPECT_TRUE(isMainEnabled() && sheet.SheetPristine);
    EXPECT_FALSE(frmSubtotal.visible || frmMain.Command5[0].enabled);

    mnuSubtotal_Click();
    frmSubtotal_Command1_Click();
    EXPECT_TRUE(sheet.SheetPristine) << "only looked at";
}

TEST_F(Subtotals, aNameShowsEverywhereAsItIsTyped)
{
    mnuSubtotal_Click();
    frmSubtotal_Text1_Edited(1, "Trees", 5);
    EXPECT_EQ(sheet.SheetHeader[2][2] + sheet.SheetHeader[2][3], "TreesSubtotal-2");
    EXPECT_EQ(frmMain.Label2[1].caption + frmMain.mnuPercentSub1.caption, "Trees:% by Trees");
    EXPECT_EQ(frmMain.mnuPercentAll.caption + frmMain.mnuPercentSub2.caption,
              "% by All total% by Subtotal-2");
    EXPECT_FALSE(sheet.SheetPristine);
    sheet.LastKeyDown = '2';
    dialogs.expect("Using double quotation mark causes fatal error. Please choose another symbol.",
                   "Caution!");
    frmSubtotal_Text1_Edited(1, "Trees\"", 6);
    EXPECT_EQ(sheet.SheetHeader[2][2] + frmSubtotal.Text1[1].text, "TreesTrees");
}

TEST_F(Subtotals, theSummaryRanksTheTaxaOfTheSampleOnShow)
{
    tap('E', 5);
    tapWith(undoKey, 'A');
    LaunchSummary();
    EXPECT_EQ(frmSummary.Text1.text, "1: Poaceae (n = 5)\r\n2: --- (n = 5)\r\n3: Pinus (n = 3)\r\n---");
    EXPECT_TRUE(frmSummary.visible && !isMainEnabled());
    frmSummary_Unload();
    EXPECT_TRUE(!frmSummary.visible && isMainEnabled());
}
