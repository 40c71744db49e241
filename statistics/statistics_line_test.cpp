#include "statistics/statistics_line.h"

#include "core/program_test.h"
#include "core/undo.h"
#include "sheet/basis.h"
#include "statistics/recount.h"
#include "statistics/target.h"
#include "statistics/watch_counts.h"

#include <algorithm>

namespace {

class LiveStatistics : public ProgramTest {
protected:
    LiveStatistics()
    {
        statisticsLine = {};
        target = {};
        recount = {};
        sheet.TaxonRecord[1].Name = frmMain.Text1[1].text = "Betula";
        for (int slot = 1; slot <= 12; ++slot)
            set(slot, 1);
    }
    ~LiveStatistics() override
    {
        statisticsLine = {};
        target = {};
        recount = {};
    }
    static void set(int slot, int count)
    {
        sheet.Count(1, slot) = count;
        frmMain.Text2[slot].text = decimalText(count);
    }
    /// Counts the taxon of slot 1 and lets the program look at it.
    void countOne()
    {
        tap('Q');
        watchCounts();
    }
};

/// 620 individuals, four singletons and two doubletons.
BasisCounts sample()
{
    BasisCounts counts;
    const std::int32_t of[] = {33, 403, 70, 50, 30, 10, 6, 4, 3, 3, 2, 2, 1, 1, 1, 1};
    int slot = 0;
    for (const std::int32_t count : of)
        counts.all[++slot] = count;
    counts.members = counts.all;
    counts.inside.fill(true);
    counts.sum = 620;
    return counts;
}

TEST(StatisticsLineText, SaysWhatIsThereAndWhatIsMissing)
{
    EXPECT_EQ(statisticsLineText(sample(), 1, "Betula", 1),
              "Coverage 99.4 % | next 100: 0.6 new taxa | Betula 5.3 % (3.8 to 7.4) | 1,328 more for +-1 %");
    EXPECT_EQ(statisticsLineText(sample(), 0, "", 1), "Coverage 99.4 % | next 100: 0.6 new taxa");
    EXPECT_NE(statisticsLineText(sample(), 1, "Betula", 5).find(" | enough for +-5 %"), std::string::npos);
    EXPECT_NE(statisticsLineText(sample(), 1, "Betula", 0.5).find(" for +-0.5 %"), std::string::npos);
}

TEST(StatisticsLineText, IsEmptyWhereThereIsNothingToSay)
{
    BasisCounts few;
    few.all[1] = few.members[1] = 19;
    few.inside[1] = true;
    few.sum = 19;
    EXPECT_EQ(statisticsLineText(few, 1, "Betula", 1), "");
    few.all[1] = few.members[1] = 20;
    few.sum = 20;
    EXPECT_NE(statisticsLineText(few, 1, "Betula", 1), "");
    few.all[2] = -1;
    few.hasNegative = true;
    EXPECT_EQ(statisticsLineText(few, 1, "Betula", 1), "") << "also if it is outside the basis";
    EXPECT_EQ(statisticsLineText({}, 0, "", 1), "");
}

TEST(StatisticsLineText, OfATaxonOutsideTheSumMayPassAHundred)
{
    BasisCounts counts = sample();
    counts.inside[20] = false;
    counts.all[20] = 1240;
    const std::string text = statisticsLineText(counts, 20, "Sphagnum", 1);
    EXPECT_NE(text.find("Sphagnum 200.0 % (18"), std::string::npos) << text;
    EXPECT_EQ(text.substr(0, 14), "Coverage 99.4 ") << "it is no member of what is covered";
}

TEST_F(LiveStatistics, ChangesWithEachKeyOnlyWhileItIsOn)
{
    countOne();
    EXPECT_EQ(statisticsLine.Label1.caption, "");
    mnuStatisticsLine_Click();
    EXPECT_TRUE(statisticsLine.mnuStatisticsLine.checked);
    for (int i = 0; i < 10; ++i)
        countOne();
    const std::string before = statisticsLine.Label1.caption;
    EXPECT_NE(before.find(" new taxa | "), std::string::npos) << before;
    countOne();
    EXPECT_NE(statisticsLine.Label1.caption, before);
    {
        const UserEvent event;
        Undo();
    }
    watchCounts();
    EXPECT_EQ(statisticsLine.Label1.caption, before);
    chooseHalfWidth(5);
    EXPECT_NE(statisticsLine.Label1.caption.find(" for +-5 %"), std::string::npos);
    recount.hiddenSerial = 1;
    watchCounts();
    EXPECT_EQ(statisticsLine.Label1.caption, "") << "the recount's sums are not to be seen here either";
    recount.hiddenSerial = 0;
    mnuStatisticsLine_Click();
    EXPECT_EQ(statisticsLine.Label1.caption, "");
}

TEST_F(LiveStatistics, TargetSaysWhatIsToGoAndRingsOnce)
{
    mnuTarget_Click();
    EXPECT_TRUE(frmTarget.visible);
    EXPECT_EQ(frmTarget.Label1.caption, "Individuals of All total:");
    frmTarget.Text1.text = "12.5";
    dialogs.expect("Please input digit(s).", "Error");
    frmTarget_Command1_Click();
    EXPECT_TRUE(frmTarget.visible);
    frmTarget.Text1.text = "15";
    frmTarget_Command1_Click();
    EXPECT_FALSE(frmTarget.visible);

    const auto alarms = [this] {
        return std::count(sound.played.begin(), sound.played.end(), Cue::SoundAlarm);
    };
    countOne();
    EXPECT_EQ(target.Label1[target.sum].caption, "15: 2 to go");
    EXPECT_EQ(alarms(), 0);
    countOne();
    countOne();
    EXPECT_EQ(target.Label1[target.sum].caption, "15: reached");
    EXPECT_EQ(alarms(), 1);
    countOne();
    EXPECT_EQ(target.Label1[target.sum].caption, "15: reached");
    for (int i = 0; i < 2; ++i) {
        {
            const UserEvent event;
            Undo();
        }
        watchCounts();
    }
    EXPECT_EQ(target.Label1[target.sum].caption, "15: 1 to go");
    countOne();
    EXPECT_EQ(alarms(), 1) << "it has rung for this sample";

    selectBasis(1); // another sum, which holds nothing
    watchCounts();
    EXPECT_EQ(target.Label1[target.sum].caption, "15: 15 to go");
    EXPECT_EQ(target.sum, 1);
    selectBasis(0);
    watchCounts();
    EXPECT_EQ(alarms(), 1) << "the sum was there already";

    mnuTarget_Click();
    EXPECT_EQ(frmTarget.Text1.text, "15");
    frmTarget.Text1.text.clear();
    frmTarget_Command1_Click();
    countOne();
    EXPECT_EQ(target.Label1[target.sum].caption, "");
}

TEST_F(LiveStatistics, TargetGivesNoSumOfARecountAway)
{
    target.individuals = 20;
    recount.hiddenSerial = 1;
    countOne();
    EXPECT_EQ(target.Label1[target.sum].caption, "20: hidden");
    for (int i = 0; i < 7; ++i)
        countOne();
    EXPECT_EQ(target.Label1[target.sum].caption, "20: reached");
}

} // namespace
