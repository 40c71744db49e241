#include "core/endings.h"
#include "core/program_test.h"
#include "files/new_sheet.h"
#include "files/next_sample.h"
#include "files/open_sheet.h"
#include "files/rename_info.h"
#include "files/save_sheet.h"
#include "files/template_file.h"

namespace {

class Samples : public ProgramTest {
protected:
    const std::string abort = "This action will abort current data. Do you proceed?";

    Samples()
    {
        hooks.SaveSheet = SaveSheet;
        frmSiteName = SampleForm();
        frmNext = NextForm();
        frmParaName = ParameterNameForm();
    }
    void next(const std::string& name, const std::string& note = "")
    {
        mnuNext_Click();
        EXPECT_TRUE(frmNext.visible && !isMainEnabled());
        frmNext.Text1.text = name;
        frmNext.Text2.text = note;
        frmNext_Command1_Click();
    }
    void save()
    {
        if (sheet.SheetPath.empty())
            dialogs.paths.push_back("/home/core.csv");
        mnuSave_Click();
    }
    static std::string names()
    {
        std::string all;
        for (int sample = 1; sample <= sheet.SampleCount; ++sample)
            all += (sample > 1 ? " " : "") + sheet.SampleField(sample, 2);
        return all;
    }
    static std::string column(int sample)
    {
        return sheet.SampleField(sample, 2) + ":" + decimalText(sheet.Count(sample, 1)) + "," +
               sheet.SampleNote(sample, 0) + "," + sheet.SampleField(sample, 1);
    }
};

} // namespace

TEST_F(Samples, aNewSheetAsksForItsFirstSample)
{
    tap('Q');
    dialogs.expect(abort, "Caution!", Answer::no);
    mnuNew_Click();
    EXPECT_EQ(shown(1), 1);
    dialogs.expect(abort, "Caution!", Answer::yes);
    mnuNew_Click();
    EXPECT_TRUE(frmSiteName.visible && !isMainEnabled());
    EXPECT_EQ(shown(1), 0);
    EXPECT_EQ(sheet.ActionCount, 1) << "the log goes on";
    frmSiteName.Text1.text = "10 cm";
    frmSiteName.Text3[2].text = "basin";
    frmSiteName.enterInfo(3);
    EXPECT_EQ(frmSiteName.Text3[3].text, "");
    frmSiteName.leaveInfo(3);
    frmSiteName_Command1_Click();
    EXPECT_FALSE(frmSiteName.visible);
    EXPECT_TRUE(isMainEnabled() && sheet.NamesNotNumeric);
    EXPECT_EQ(frmMain.Text1[0].text + frmMain.Combo2.text, "10 cm10 cm");
    EXPECT_EQ(sheet.AdditionalInfo(1, 2) + frmMain.Text5[3].text, "basin---");
    EXPECT_EQ(sheet.SampleStamp(1, 1), "15/11/2026 (14:05:09)");
    EXPECT_EQ(frmMain.caption, "TallyStrata 3.2.5 - [Untitled]");
    EXPECT_EQ(sheet.ActionText.back(), "(New sample: 10 cm)");
    EXPECT_EQ(sheet.ActionCount, 3) << "stamped twice";
    EXPECT_TRUE(frmMain.Command5[0].enabled);

    frmMain.mnuNew.enabled = true;
    dialogs.expect(abort, "Caution!", Answer::yes);
    mnuNew_Click();
    frmSiteName_Command3_Click();
    EXPECT_EQ(names(), "-9999");
    dialogs.expect(abort, "Caution!", Answer::yes);
    mnuNew_Click();
    frmSiteName_Command1_Click();
    EXPECT_EQ(names(), "1: ---");
}

TEST_F(Samples, stayInDepthOrderWithAllThatBelongsToThem)
{
    mnuNext_Click();
    EXPECT_EQ(frmNext.Label1.caption, "Name of the first sample: ");
    frmNext_Command3_Click();
    next("10", "a");
    EXPECT_EQ(sheet.SampleCount, 1) << "the placeholder's column";
    tap('Q', 1);
    save();
    next("30", "b");
    EXPECT_EQ(frmNext.Label1.caption, "Name of the next sample: ");
    EXPECT_EQ(shown(1), 0);
    tap('Q', 3);
    save();
    next("20", "c");
    EXPECT_EQ(names(), "10 20 30");
    EXPECT_EQ(sheet.CurrentSample, 2);
    EXPECT_EQ(frmMain.Label4.caption, "3/3");
    EXPECT_EQ(frmMain.Combo2.items, (std::vector<std::string>{"10", "20", "30"}));
    EXPECT_EQ(frmMain.Combo2.text, "20");
    tap('Q', 2);
    EXPECT_EQ(column(1) + " " + column(2) + " " + column(3), "10:1,a,1 20:2,c,3 30:3,b,2");
    EXPECT_EQ(sheet.SavedCount(3, 1), 3) << "what a reset goes back to follows";

    for (int i = 0; i < 3; ++i)
        tap(8); // two of 20, then one of 30, where it is now
    EXPECT_EQ(column(2) + " " + column(3), "20:0,c,3 30:2,b,2");
    EXPECT_EQ(sheet.CurrentSample, 3);
    save();
    next("30.0");
    EXPECT_EQ(names(), "10 20 30 30.0") << "of equal depths the new one comes last, and the names differ";
    next("");
    EXPECT_EQ(names(), "10 20 30 30.0 5: ---") << "a name that is no depth ends the sorting";
    next("15");
    EXPECT_EQ(sheet.CurrentSample, 6);
}

TEST_F(Samples, areRefusedWhereANameOrACountWouldBeLost)
{
    tap('Q', 2);
    mnuNext_Click();
    frmNext.Text1.text = "10";
    dialogs.expect(abort, "Caution!", Answer::no);
    frmNext_Command1_Click();
    EXPECT_TRUE(frmNext.visible);
    EXPECT_EQ(stored(1), 2);
    dialogs.expect(abort, "Caution!", Answer::yes);
    frmNext_Command1_Click();
    EXPECT_EQ(column(1), "10:0,---,1");
    EXPECT_EQ(sheet.UndoStack[0].slot, 0) << "those counts can not be taken back any more";

    mnuNext_Click();
    frmNext.Text1.text = "10";
    dialogs.expect("The sample name is already used. Choose another name.", "Error!");
    frmNext_Command1_Click();
    EXPECT_TRUE(frmNext.visible);
    frmNext_Command3_Click();
    EXPECT_TRUE(isMainEnabled());

    sheet.SampleField(1, 1) = "40"; // an earlier sample was taken out of the file
    next("20");
    EXPECT_EQ(sheet.SampleField(2, 1), "41");
    sheet.Count(3, 7) = 99; // left there by another sheet
    next("30");
    EXPECT_EQ(stored(7), 0);
    sheet.SampleCount = sampleLimit;
    dialogs.expect("Sample number reached 250. Please create new data sheet.", "Format regulation");
    mnuNext_Click();
    EXPECT_FALSE(frmNext.visible);
}

TEST_F(Samples, aTemplateIsFinishedByItsFirstSample)
{
    sheet.TaxonRecord[1].Name = "Pinus";
    frmMain.Label10[1].caption = "Grain size:";
    dialogs.paths = {"/home/t.csv", "/home/t.csv"};
    mnuTemplate_Click();
    mnuOpen_Click();
    ASSERT_TRUE(frmSiteName.visible && !isMainEnabled());
    EXPECT_EQ(frmSiteName.Label3[1].caption, "Grain size:");
    frmSiteName.Text1.text = "7";
    frmSiteName_Command1_Click();
    EXPECT_EQ(column(1), "7:0,---,1");
    EXPECT_EQ(frmMain.Text1[1].text, "Pinus");
    EXPECT_EQ(frmMain.caption, "TallyStrata 3.2.5 - [t]");
}

TEST_F(Samples, additionalInfoIsRenamedFromBothWindows)
{
    Command7_Click(2);
    EXPECT_EQ(frmParaName.Label2.caption, "Additional info-2");
    frmParaName.Text1.text = "Grain size";
    frmParaName_Command1_Click();
    EXPECT_EQ(frmMain.Label10[2].caption, "Grain size:");
    EXPECT_TRUE(isMainEnabled() && frmMain.Command5[0].enabled);
    Command7_Click(2);
    frmParaName.Text1.text = "other";
    frmParaName_Command2_Click();
    EXPECT_EQ(frmMain.Label10[2].caption, "Grain size:");

    mnuNext_Click();
    frmNext_Command5_Click(2);
    EXPECT_EQ(frmParaName.Label2.caption, "Grain size");
    frmParaName.Text1.text = "";
    frmParaName_Command1_Click();
    EXPECT_EQ(frmNext.Label3[2].caption, ":");
    EXPECT_EQ(frmMain.Label10[2].caption, "Grain size:");
    EXPECT_TRUE(frmNext.visible && !isMainEnabled() && !frmParaName.visible);
    frmNext_Command5_Click(2);
    frmParaName.Text1.text = "Volume";
    frmParaName_Command1_Click();
    frmNext_Command1_Click();
    EXPECT_EQ(frmMain.Label10[2].caption, "Volume:") << "taken with the sample";
}
