#include "core/sample_sort.h"

#include "core/editing.h"
#include "core/program_test.h"
#include "core/text_changes.h"

namespace {

class SampleSortTest : public ProgramTest {
protected:
    /// Samples of these names, each with its own counts.
    static void name(std::initializer_list<const char*> names)
    {
        addSamples(static_cast<int>(names.size()));
        int sample = 0;
        for (const char* const one : names) {
            ++sample;
            sheet.SampleField(sample, 1) = decimalText(sample);
            sheet.SampleField(sample, 2) = one;
            sheet.Count(sample, 7) = 10 * sample;
            sheet.SampleNote(sample, 0) = std::string("note of ") + one;
        }
    }
    static std::string order()
    {
        std::string text;
        for (int sample = 1; sample <= sheet.SampleCount; ++sample)
            text += sheet.SampleField(sample, 2) + " (" + sheet.SampleField(sample, 1) + ") ";
        return text;
    }
};

} // namespace

TEST_F(SampleSortTest, bringsEachSampleToItsDepthWithAllThatIsItsOwn)
{
    name({"10", "40", "20.0", "5", "20"});
    sheet.CurrentSample = 2;
    sheet.UndoStack[0] = {3, 7};
    mnuSortSamples_Click();
    EXPECT_EQ(order(), "5 (4) 10 (1) 20.0 (3) 20 (5) 40 (2) ");
    EXPECT_EQ(sheet.CurrentSample, 5);
    EXPECT_EQ(frmMain.Combo2.text, "40");
    EXPECT_EQ(frmMain.Combo2.items.front(), "5");
    EXPECT_EQ(sheet.UndoStack[0].sample, 3);
    EXPECT_TRUE(sheet.Count(1, 7) == 40 && sheet.Count(5, 7) == 20);
    EXPECT_EQ(sheet.SampleNote(1, 0), "note of 5");
    EXPECT_EQ(frmMain.Combo1.items.back(), "(Sort samples by depth)");
    EXPECT_TRUE(frmMain.Command5[0].enabled) << "there is something to save";
}

TEST_F(SampleSortTest, isOfferedForDepthsThatDoNotAscendAlone)
{
    const auto offered = [] {
        mnuEdit_Open();
        return sampleSort.mnuSortSamples.enabled;
    };
    name({"10", "20", "20.0", "30"});
    EXPECT_FALSE(offered());
    const std::string before = order();
    const std::size_t lines = frmMain.Combo1.items.size();
    mnuSortSamples_Click();
    EXPECT_TRUE(order() == before && frmMain.Combo1.items.size() == lines && !frmMain.Command5[0].enabled);
    name({"10", "20", "15"});
    EXPECT_TRUE(offered());
    name({"10", "20", "15 cm"});
    EXPECT_FALSE(offered());
    name({"-9999"});
    EXPECT_FALSE(offered());
}

TEST_F(SampleSortTest, waitsForANameThatIsStillTyped)
{
    name({"10", "20", "30"});
    sheet.Modifying = true;
    sheet.CurrentSample = 1;
    setText1(0, "10");
    sheet.Modifying = true;
    const auto type = [](const char* text, int caret) { Text1_Edited(0, text, caret); };
    Text1_GotFocus(0);
    dialogs.expect("The sample name is already used. Choose another name.", "Error!");
    type("30", 2); // another sample's: it is refused, and nothing is left to sort
    mnuSortSamples_Click();
    EXPECT_EQ(order(), "10 (1) 20 (2) 30 (3) ");
    type("25", 2);
    mnuSortSamples_Click();
    EXPECT_EQ(order(), "20 (2) 25 (1) 30 (3) ");
    type("27", 2);
    EXPECT_EQ(order(), "20 (2) 27 (1) 30 (3) ") << "the visit goes on";
}
