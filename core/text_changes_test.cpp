#include "core/text_changes.h"

#include "core/program_test.h"
#include "core/recount_totals.h"
#include "core/show_sample.h"

class CountBox : public ProgramTest {
protected:
    /// The user types over the number of slot 1.
    static void type(const char* text)
    {
        sheet.PreviousCount = static_cast<float>(wholeNumber(frmMain.Text2[1].text));
        frmMain.Text2[1].text = text;
        Text2_Change(1);
    }
};

TEST_F(CountBox, storesWholeNumbersOfTheSampleOnShowAndRecountsWhileTheSheetIsEdited)
{
    type("12");
    EXPECT_EQ(12, stored(1));
    EXPECT_EQ("0", frmMain.Text3[0].text);
    sheet.Modifying = true;
    type("-3");
    EXPECT_EQ(-3, stored(1));
    EXPECT_EQ("-3", frmMain.Text3[0].text);
    EXPECT_TRUE(frmMain.Text2[1].bold && !sheet.FreshSheet);
    sheet.KeysActive = false;
    type("33.3"); // a percentage
    sheet.KeysActive = sheet.SampleSwitching = true;
    type("44"); // the box still has another sample's
    EXPECT_EQ(-3, stored(1));
}

TEST_F(CountBox, refusesWhatIsNoWholeNumberOnce)
{
    type("7");
    for (const bool modifying : {false, true})
        for (const char* text : {"", "12.5", "abc", "012", "+1", " 1", "1 ", "-0", "-", "2147483648"}) {
            sheet.Modifying = sheet.SoundOn = modifying;
            dialogs.expect("Please input digit(s).", "Error");
            type(text);
            EXPECT_EQ("7", frmMain.Text2[1].text) << text;
            EXPECT_EQ(7, stored(1)) << text;
        }
    EXPECT_EQ(std::vector(10, Cue::SoundError), sound.played);
}

TEST_F(CountBox, onlyCountingAndTakingBackStampTheBeginningOfTheCount)
{
    const auto began = [] { return sheet.SampleStamp(1, 2); };
    tap('Q', 2);
    const std::string stamp = began();
    EXPECT_EQ("15/11/2026 (14:05:09)", stamp);
    clock.moment.hour = 15;
    sheet.Modifying = true;
    type("1");
    EXPECT_EQ("1", frmMain.Text3[0].text);
    EXPECT_EQ(stamp, began());
    type("2");
    sheet.Modifying = false;
    tap(undoKey);
    EXPECT_EQ("15/11/2026 (15:05:09)", began());
}

class Totals : public ProgramTest {};

TEST_F(Totals, areSumsOfTheBoxesWhileTheTableDecidesWhatIsBold)
{
    const char* const rows[][3] = {{"1", "1", ""},      {"20", "1.0", "-"},    {"300", " 1", "--"},
                                   {"4000", "2", "  "}, {"50000", "-1", "- "}, {"x", "1", "A"}};
    int row = 0;
    for (const auto& [count, subtotal, name] : rows) {
        frmMain.Text2[++row].text = count;
        sheet.TaxonRecord[row].Subtotal1 = subtotal;
        setText1(row, name);
    }
    sheet.TaxonRecord[4].Subtotal2 = "1";
    frmMain.Text2[135].text = "-100000";
    sheet.Count(2, 4) = -1;
    sheet.Count(1, 5) = 1; // of another sample
    RecountTotals(2);
    EXPECT_EQ("-45679 321 4000",
              frmMain.Text3[0].text + " " + frmMain.Text3[1].text + " " + frmMain.Text3[2].text);
    EXPECT_TRUE(frmMain.Text1[4].bold && !frmMain.Text1[3].bold && !frmMain.Text2[5].bold);
    for (int slot = 1; slot <= 4; ++slot) // a blank name gets its dashes
        EXPECT_EQ("---", sheet.TaxonRecord[slot].Name) << slot;
    EXPECT_EQ("- A", frmMain.Text1[5].text + frmMain.Text1[6].text);
}

TEST_F(Totals, openTheNextSampleAndStampTheFirstIndividual)
{
    sheet.KeysActive = false;
    for (const char* percentage : {"1", "0"})
        setText3(0, percentage);
    EXPECT_FALSE(frmMain.Command5[1].enabled || frmMain.mnuNext.enabled);
    sheet.KeysActive = true;
    tap('Q');
    clock.moment.hour = 15;
    RecountTotals(1); // the total stays what it is
    setText3(1, "1");
    tap('W');
    EXPECT_TRUE(frmMain.Command5[1].enabled && frmMain.mnuNext.enabled);
    EXPECT_EQ("15/11/2026 (14:05:09)", frmMain.Label14[1].caption);
}

TEST_F(Totals, sampleThatIsOnlyShownIsNoEdit)
{
    setLabel4("1/2");
    EXPECT_FALSE(frmMain.mnuDiagramStyles.enabled); // one sample makes no diagram
    addSamples(3);
    sheet.Count(2, 7) = 1;
    sheet.Count(3, 7) = 40000;
    const auto counts = sheet.Count;
    const auto names = sheet.SampleField;
    for (const int sample : {2, 3, 1, 2}) {
        showSample(sample);
        EXPECT_EQ("", sheet.SampleStamp(sample, 2));
    }
    EXPECT_TRUE(counts == sheet.Count && names == sheet.SampleField);
    EXPECT_TRUE(sheet.SheetPristine && !frmMain.Command5[0].enabled && frmMain.mnuDiagramStyles.enabled);
}
