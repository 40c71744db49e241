#include "core/fields.h"
#include "core/program_test.h"
#include "files/save_sheet.h"
#include "files/text_exports.h"

#include <algorithm>

namespace {

class Exports : public ProgramTest {
protected:
    const std::string busy =
        "The file is being used by another software. Please close the file and try again.";

    /// The answer of the next file dialog.
    void choose(std::optional<std::string> path) { dialogs.paths.push_back(std::move(path)); }
    std::string lines(const std::string& path, int first, int last)
    {
        const std::string& text = files.contents.at(path);
        std::size_t begin = 0;
        for (int line = 1; line < first; ++line)
            begin = text.find("\r\n", begin) + 2;
        std::size_t end = begin;
        for (int line = first; line <= last; ++line)
            end = text.find("\r\n", end) + 2;
        return text.substr(begin, end - begin);
    }
    /// Three samples: thirds, a total below 0, and percentages that lie halfway.
    void makeSheet()
    {
        addSamples(3);
        sheet.SheetHeader[2][2] = "Trees";
        sheet.TaxonRecord[1] = {"1", "1", "1", "0", "Pinus"};
        const int counts[3][3] = {{1, 2, 0}, {0, 0, -7}, {3, 125, 0}};
        for (int sample = 1; sample <= 3; ++sample)
            for (int slot = 1; slot <= 3; ++slot)
                sheet.Count(sample, slot) = counts[sample - 1][slot - 1];
        sheet.CurrentSample = 3;
        frmMain.Combo2.text = "30";
        for (int slot = 1; slot <= 3; ++slot)
            frmMain.Text2[slot].text = decimalText(counts[2][slot - 1]);
        sheet.SheetPath = "/home/Lake1.csv";
        sheet.SheetUnnamed = false;
    }
};

} // namespace

TEST_F(Exports, theHistoryHasALineForEachActionBetweenStartAndSaved)
{
    sheet.ActionTime = {"15/11/2026_14:00:00:00"};
    tap('Q');
    clock.moment.second = 30;
    tap(undoKey);
    sheet.ActionText[1] = "(Open) /home/a \"b\".csv";
    bool barShown = false;
    dialogs.whenOpened = [&] { barShown = frmMain.ProgressBar1.visible && frmMain.ProgressBar1.max == 2; };
    choose("/home/h.csv");
    mnuSaveHistory_Click();
    EXPECT_EQ(dialogs.proposed, "/program/References/History.csv");
    EXPECT_EQ(files.contents.at("/home/h.csv"), "\"Start: \",\"15/11/2026_14:00:00:00\"\r\n"
                                                "\"(Open) /home/a 'b'.csv\",\"15/11/2026_14:05:09:27\"\r\n"
                                                "\"(Undo) 1: ---\",\"15/11/2026_14:05:30:27\"\r\n"
                                                "\"Saved: \",\"15/11/2026_14:05:30:27\"\r\n");
    EXPECT_TRUE(barShown);
    EXPECT_FALSE(frmMain.ProgressBar1.visible || frmMain.pointer == Pointer::hourglass);
    EXPECT_EQ(sound.played.back(), Cue::SoundSave);

    choose(std::nullopt); // without a message
    mnuSaveHistory_Click();
    files.unwritable.insert("/home/h.csv");
    choose("/home/h.csv");
    dialogs.expect("Save failed (file is being usd by another application).", "Error!");
    mnuSaveHistory_Click();
    EXPECT_FALSE(frmMain.ProgressBar1.visible);
}

TEST_F(Exports, theSaturationFileHoldsThePointsOfTheSampleOnShow)
{
    const auto saved = [this] {
        choose("/home/s.csv");
        SaveDiversity();
        const std::string text = files.contents.at("/home/s.csv");
        const std::string head = "\"-9999\"\r\n\"No. of individuals\",\"Diversity\"\r\n";
        EXPECT_EQ(text.substr(0, head.size()), head);
        return text.substr(head.size());
    };
    sheet.DiversityTotal = 5;
    sheet.DiversityCurve = {0, 10, 17, 0, 0, 5};
    EXPECT_EQ(saved(), "1,1\r\n2,1.7\r\n5,0.5\r\n\"(End)\"\r\n") << "no line for a total without a point";
    EXPECT_EQ(dialogs.proposed, "/program/References/Saturation.csv");
    sheet.DiversityTotal = 0;
    EXPECT_EQ(saved(), "\"(End)\"\r\n");
    EXPECT_TRUE(sound.played.empty());
    files.unwritable.insert("/home/s.csv");
    choose("/home/s.csv");
    SaveDiversity(); // without a message
    EXPECT_FALSE(frmMain.ProgressBar1.visible);
}

TEST_F(Exports, percentagesAreRoundedHalvesToEven)
{
    makeSheet();
    choose("/home/p.csv");
    mnuPercentAll_Click();
    EXPECT_EQ(dialogs.proposed, "/home/Lake1_percent.csv");
    EXPECT_EQ(lines("/home/p.csv", 2, 6),
              "\"Key index\",\"Trees\",\"Subtotal-2\",\"Sample name\",\"10\",\"20\",\"30\"\r\n"
              "1,1,0,\"Pinus\",33.3333,0,2.3438\r\n" // 2.34375
              "2,0,0,\"---\",66.6667,0,97.6562\r\n"  // 97.65625
              "3,0,0,\"---\",0,100,0\r\n"
              "4,0,0,\"---\",0,0,0\r\n");
    EXPECT_EQ(lines("/home/p.csv", 144, 144),
              "\"---\",\"---\",\"---\",\"Created:\",\"---\",\"---\",\"---\"\r\n")
        << "no notes";
    EXPECT_EQ(lines("/home/p.csv", 147, 149),
              "\"---\",\"---\",\"---\",\"Trees\",33.3333,0,2.3438\r\n"
              "\"---\",\"---\",\"---\",\"Subtotal-2\",0,0,0\r\n"
              "\"---\",\"---\",\"---\",\"All total\",\"100 (n=3)\",\"100 (n=-7)\",\"100 (n=128)\"\r\n");
    const std::string& text = files.contents.at("/home/p.csv");
    EXPECT_EQ(std::count(text.begin(), text.end(), '\n'), 149);
}

TEST_F(Exports, aTableByASubtotalHasEveryTaxonAndNoBasisIs9999)
{
    makeSheet();
    sheet.AlarmArmed = false;
    choose("/home/p.csv");
    mnuPercentSub1_Click();
    EXPECT_TRUE(frmMain.Option1[1].selected && frmMain.Text1[1].underline && sheet.AlarmArmed);
    EXPECT_FALSE(frmMain.Option1[0].selected);
    EXPECT_EQ(lines("/home/p.csv", 3, 5), "1,1,0,\"Pinus\",100,9999,100\r\n"
                                          "2,0,0,\"---\",200,9999,4166.667\r\n" // in single precision
                                          "3,0,0,\"---\",0,9999,0\r\n");
    EXPECT_EQ(lines("/home/p.csv", 147, 149),
              "\"---\",\"---\",\"---\",\"Trees\",\"100 (n=1)\",\"100 (n=0)\",\"100 (n=3)\"\r\n"
              "\"---\",\"---\",\"---\",\"Subtotal-2\",0,9999,0\r\n"
              "\"---\",\"---\",\"---\",\"All total\",300,9999,4266.6667\r\n");
}

TEST_F(Exports, aPercentageTableIsNoSaveOfTheCounts)
{
    makeSheet();
    frmMain.Command5[0].enabled = true;
    sheet.Count(1, 1) = 40000;
    dialogs.expect(busy, "Error");
    mnuPercentAll_Click();
    sheet.Count(1, 1) = 1;
    choose("/home/other"); // a name without a point is as good, since the sheet keeps its own
    mnuPercentAll_Click();
    EXPECT_EQ(lines("/home/other", 1, 1).substr(0, 17), "\"/home/Lake1.csv\"");
    EXPECT_EQ(frmMain.Combo1.text + sheet.SheetPath, "(Save)/home/Lake1.csv");
    EXPECT_TRUE(frmMain.Command5[0].enabled) << "the counts are still unsaved";

    frmMain.Command5[0].enabled = false;
    choose("/home/Lake1.csv");
    mnuPercentAll_Click();
    EXPECT_TRUE(frmMain.Command5[0].enabled) << "the sheet's own file holds no counts now";

    sheet.SheetPath.clear();
    sheet.SheetUnnamed = true;
    choose(std::nullopt);
    mnuPercentSub2_Click();
    EXPECT_EQ(sheet.SaveResult, 2);
    choose("/home/Lake2.csv");
    mnuPercentSub2_Click();
    EXPECT_EQ(sheet.SheetPath + frmMain.caption, "/home/Lake2.csvTallyStrata 3.2.5 - [Lake2]");
    EXPECT_EQ(lines("/home/Lake2.csv", 1, 1).substr(0, 17), "\"/home/Lake2.csv\"");
    EXPECT_TRUE(frmMain.Command5[0].enabled && !sheet.SheetUnnamed);
}
