#include "sheet/basis.h"

#include "core/program_test.h"
#include "core/recount_totals.h"
#include "core/text_changes.h"
#include "sheet/percent_view.h"

class Basis : public ProgramTest {
protected:
    static void setCount(int slot, int count)
    {
        setText2(slot, decimalText(count));
        RecountTotals(1);
    }
};

TEST_F(Basis, underlinesItsMembersAndArmsTheAlarm)
{
    sheet.TaxonRecord[3].Subtotal1 = sheet.TaxonRecord[4].Subtotal2 = "1";
    for (const int basis : {1, 2, 0}) {
        sheet.AlarmArmed = false;
        selectBasis(basis);
        EXPECT_TRUE(sheet.AlarmArmed && frmMain.Option1[basis].selected);
        EXPECT_EQ(frmMain.Text1[3].underline, basis == 1);
        EXPECT_EQ(frmMain.Text1[4].underline, basis == 2);
        EXPECT_FALSE(frmMain.Text1[5].underline);
    }
    sheet.AlarmArmed = false;
    selectBasis(0);
    EXPECT_FALSE(sheet.AlarmArmed) << "nothing was chosen anew";
}

TEST_F(Basis, shareOfATaxonOutsideItMayPassOne)
{
    setCount(1, 6);
    setCount(2, 4);
    sheet.TaxonRecord[2].Subtotal1 = "1";
    ComputePercentages(1);
    EXPECT_FLOAT_EQ(sheet.Share(1, 1), 0.6F);
    EXPECT_EQ(sheet.Share(1, 0), 1) << "the total's share of itself";
    selectBasis(1);
    ComputePercentages(1);
    EXPECT_FLOAT_EQ(sheet.Share(1, 1), 1.5F);
    EXPECT_EQ(sheet.Count(1, 0), 4);
    sheet.TaxonRecord[2].Subtotal1 = "0";
    ComputePercentages(1);
    EXPECT_EQ(sheet.Share(1, 1), noShare);
}

TEST_F(Basis, percentagesShowWhileTheButtonIsHeldAndStoreNothing)
{
    setCount(1, 1); // 6.25 %: a half goes to the even side
    setCount(2, 3); // 18.75 %
    setCount(46, 12);
    sheet.TaxonRecord[2].Subtotal1 = "1";
    RecountTotals(1);
    const auto counts = sheet.Count;
    const auto shown = frmMain.Text2;
    Command6_MouseDown();
    EXPECT_EQ(frmMain.Text2[1].text, "6.2");
    EXPECT_EQ(frmMain.Text2[2].text, "18.8");
    EXPECT_EQ(frmMain.Text2[46].text, "75");
    EXPECT_EQ(frmMain.Text2[3].text, "0");
    EXPECT_EQ(frmMain.Text3[0].text, "100");
    EXPECT_EQ(frmMain.Text3[1].text, "18.8");
    tap('Q'); // counts nothing
    Command6_MouseUp();
    Command6_MouseUp(); // the focus goes after the button was let go
    EXPECT_EQ(frmMain.Text2, shown);
    EXPECT_EQ(frmMain.Text3[0].text, "16");
    EXPECT_TRUE(sheet.Count(1, 1) == counts(1, 1) && sheet.Count(1, 46) == 12);
    tap('Q');
    EXPECT_EQ(frmMain.Text3[0].text, "17");
}

TEST_F(Basis, withoutIndividualsShowsZerosAndLeavesTheTotals)
{
    setCount(1, 5);
    selectBasis(1);
    Command6_MouseDown();
    EXPECT_EQ(frmMain.Text2[1].text, "0");
    EXPECT_EQ(frmMain.Text3[0].text, "5");
    Command6_MouseUp();
    EXPECT_EQ(frmMain.Text2[1].text, "5");
}

TEST_F(Basis, hundredShowsAtItsTotalUntilTheNextKey)
{
    sheet.SoundOn = false; // it is not missed then
    setCount(1, 99);
    tap('Q');
    EXPECT_TRUE(frmMain.hundredMark[0]);
    EXPECT_FALSE(frmMain.hundredMark[1]);
    tap(shift1);
    EXPECT_FALSE(frmMain.hundredMark[0]);
    tap('Q');
    tap(undoKey); // back to a hundred
    EXPECT_TRUE(frmMain.hundredMark[0]);
    tap(undoKey);
    EXPECT_FALSE(frmMain.hundredMark[0]);

    tap('Q');
    selectBasis(1); // another total is watched
    EXPECT_FALSE(frmMain.hundredMark[0]);
}
