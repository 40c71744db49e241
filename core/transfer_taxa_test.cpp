#include "core/transfer_taxa.h"

#include "core/amending.h"
#include "core/editing.h"
#include "core/program_test.h"
#include "core/text_changes.h"

class Move : public ProgramTest {
protected:
    Move()
    {
        addSamples(3);
        AmendingOnOff(0);
        setText1(3, "Quercus-D");
        sheet.TaxonRecord[3].Subtotal2 = "1";
        sheet.Count(2, 3) = 5;
        sheet.Count(3, 3) = -2;
        setText2(3, "7");
        sheet.MoveSource = 3;
    }
};

TEST_F(Move, takesTheRowOfAllSamplesAlong)
{
    setText1(50, "a name that goes");
    sheet.TaxonRecord[50].Subtotal1 = "1";
    TransferTaxa(50);
    EXPECT_EQ(7, sheet.Count(1, 50));
    EXPECT_EQ(5, sheet.Count(2, 50));
    EXPECT_EQ(-2, sheet.Count(3, 50));
    for (int sample = 1; sample <= 3; ++sample)
        EXPECT_EQ(0, sheet.Count(sample, 3));
    const TaxonFields& moved = sheet.TaxonRecord[50];
    EXPECT_EQ("50 50 0 1 Quercus-D", moved.RowNumber + " " + moved.KeyIndex + " " + moved.Subtotal1 + " " +
                                         moved.Subtotal2 + " " + moved.Name);
    EXPECT_EQ("---", sheet.TaxonRecord[3].Name);
    EXPECT_EQ("0", sheet.TaxonRecord[3].Subtotal2);
    EXPECT_EQ("7", frmMain.Text2[50].text);
    EXPECT_EQ("0", frmMain.Text2[3].text);
    EXPECT_EQ("7", frmMain.Text3[2].text);
    EXPECT_EQ("(Move) Quercus-D: 3 to 50", sheet.ActionText.back());
    EXPECT_EQ(50, sheet.HighlightRow);
    EXPECT_EQ(RGB(255, 255, 135), frmMain.Text1[50].backColor);
    EXPECT_TRUE(!sheet.SheetPristine && sheet.UnsavedEdits && frmMain.mnuNew.enabled);
    TransferTaxa(50);
    EXPECT_EQ("---", sheet.TaxonRecord[50].Name) << "an empty row moves too";
}

TEST_F(Move, losesNothingToItselfOrToNoRow)
{
    for (const auto& [source, target] : {std::pair(3, 3), {0, 3}, {3, 0}, {3, 136}}) {
        sheet.MoveSource = source;
        TransferTaxa(target);
        EXPECT_EQ(7, sheet.Count(1, 3));
        EXPECT_EQ("Quercus-D", sheet.TaxonRecord[3].Name);
    }
}

TEST_F(Move, menusShowWhatHeldWhenTheyClosedLastAndCountsGoOnlyWhenAsked)
{
    sheet.Count(2, 9) = 4;
    sheet.Count(1, 10) = 1;
    sheet.Count(2, 10) = -1;
    openTargetMenu(0);
    EXPECT_EQ("3: Quercus-D", frmMain.mnuMoveTo[3].caption);
    EXPECT_TRUE(frmMain.mnuMoveTo[9].enabled) << "not looked at yet";
    dialogs.expect("This action will abort current data. Do you proceed?", "Caution!", Answer::no);
    mnuMoveTo_Click(9);
    EXPECT_EQ(4, sheet.Count(2, 9));
    mnuMoveTo_Click(12);
    targetMenuClosed(0);
    for (const auto& [slot, enabled] : {std::pair(3, true), {9, false}, {10, true}, {12, false}, {57, true}})
        EXPECT_EQ(enabled, frmMain.mnuMoveTo[slot].enabled) << slot;
    openTargetMenu(2);
    EXPECT_EQ(2, frmMain.SSTab1);
}

TEST_F(Move, isNoEditOfTheBoxThatIsVisited)
{
    Text1_GotFocus(3);
    Text1_Edited(3, "Quercus", 7);
    TransferTaxa(50);
    leaveEditedBox();
    const auto last = sheet.ActionText.rbegin();
    EXPECT_EQ("(Move) Quercus: 3 to 50", *last);
    EXPECT_EQ("3: Taxa name [Quercus]", *(last + 1));
}
