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

TEST_F(CountBox, storesWholeNumbersAndRecountsWhileTheSheetIsEdited)
{
    type("12");
    EXPECT_EQ(12, stored(1));
    EXPECT_EQ("0", frmMain.Text3[0].text);
    sheet.Modifying = true;
    type("-3");
    EXPECT_EQ(-3, stored(1));
    EXPECT_EQ("-3", frmMain.Text3[0].text);
    EXPECT_TRUE(frmMain.Text2[1].bold && !sheet.FreshSheet);
}

TEST_F(CountBox, refusesWhatIsNoWholeNumberOnce)
{
    type("7");
    for (const bool modifying : {false, true})
        for (const char* text : {"", "12.5", "abc", "3a", "007", "99999999999"}) {
            sheet.Modifying = sheet.SoundOn = modifying;
            sound.played.clear();
            dialogs.expect("Please input digit(s).", "Error");
            type(text);
            EXPECT_EQ("7", frmMain.Text2[1].text) << text;
            EXPECT_EQ(7, stored(1)) << text;
            EXPECT_EQ(modifying ? std::vector{Cue::SoundError} : std::vector<Cue>{}, sound.played) << text;
        }
    EXPECT_EQ("7", frmMain.Text3[0].text);
    EXPECT_EQ(0, sheet.ActionCount);
}

TEST_F(CountBox, storesNothingWhilePercentagesOrAnotherSampleAreBeingShown)
{
    sheet.KeysActive = false;
    type("33.3");
    sheet.KeysActive = sheet.SampleSwitching = true;
    type("44");
    EXPECT_EQ(0, stored(1));
}

class Totals : public ProgramTest {};

TEST_F(Totals, areSumsOfTheBoxesWhileTheTableDecidesWhatIsBold)
{
    const char* const texts[] = {"", "1", "20", "300", "4000", "50000", "x"};
    const char* const flags[] = {"", "1", "1.0", " 1", "2", "-1", "1"};
    for (int slot = 1; slot <= 6; ++slot) {
        frmMain.Text2[slot].text = texts[slot];
        sheet.TaxonRecord[slot].Subtotal1 = flags[slot];
    }
    sheet.TaxonRecord[4].Subtotal2 = "1";
    frmMain.Text2[135].text = "-100000";
    sheet.Count(2, 4) = -1;
    sheet.Count(1, 5) = 1; // of another sample
    frmMain.Text1[2].bold = frmMain.Text2[2].bold = true;
    for (int twice = 0; twice < 2; ++twice)
        RecountTotals(2);
    EXPECT_EQ(-45679, sheet.SampleTotal);
    EXPECT_EQ("-45679", frmMain.Text3[0].text);
    EXPECT_EQ("321", frmMain.Text3[1].text);
    EXPECT_EQ("4000", frmMain.Text3[2].text);
    EXPECT_EQ("321", sheet.TaxonRecord[0].Subtotal1);
    EXPECT_EQ("4000", sheet.TaxonRecord[0].Subtotal2);
    for (int slot = 1; slot <= taxonSlots; ++slot)
        EXPECT_TRUE(frmMain.Text1[slot].bold == (slot == 4) && frmMain.Text2[slot].bold == (slot == 4))
            << slot;
}

TEST_F(Totals, giveBlankNamesTheirDashes)
{
    for (const std::string name : {"", " ", "  ", "-", "--", "- ", "   ", "A", "----"}) {
        setText1(9, name);
        RecountTotals(1);
        const bool blank = name.size() < 3 && name != "- " && name != "A";
        EXPECT_EQ(blank ? "---" : name, frmMain.Text1[9].text);
        EXPECT_EQ(blank ? "---" : name, sheet.TaxonRecord[9].Name);
    }
}

TEST_F(Totals, openTheNextSampleAndStampTheFirstIndividual)
{
    sheet.KeysActive = false;
    setText3(0, "1");
    sheet.KeysActive = true;
    setText3(0, "0"); // a percentage does not
    EXPECT_FALSE(frmMain.Command5[1].enabled || frmMain.mnuNext.enabled);
    EXPECT_EQ("", sheet.SampleStamp(1, 2));

    tap('Q');
    clock.moment.hour = 15;
    RecountTotals(1); // the total stays what it is
    setText3(1, "1");
    tap('W');
    EXPECT_TRUE(frmMain.Command5[1].enabled && frmMain.mnuNext.enabled);
    EXPECT_EQ("15/11/2026 (14:05:09)", sheet.SampleStamp(1, 2));
    EXPECT_EQ("15/11/2026 (14:05:09)", frmMain.Label14[1].caption);
}

TEST_F(Totals, sampleThatIsOnlyShownIsNoEdit)
{
    setLabel4("1/2");
    EXPECT_FALSE(frmMain.mnuBar.enabled); // one sample makes no diagram
    addSamples(3);
    sheet.Count(2, 7) = 1;
    sheet.Count(3, 7) = 40000;
    const auto counts = sheet.Count;
    const auto names = sheet.SampleField;
    for (const int sample : {2, 3, 1, 2}) {
        showSample(sample);
        EXPECT_EQ(sheet.Count(sample, 7), shown(7));
        EXPECT_EQ(sheet.Count(sample, 7), sheet.SampleTotal);
        EXPECT_EQ(sheet.Count(sample, 7) != 0, frmMain.Text2[7].bold);
        EXPECT_EQ("", sheet.SampleStamp(sample, 2));
    }
    EXPECT_TRUE(counts == sheet.Count && names == sheet.SampleField);
    EXPECT_TRUE(sheet.SheetPristine && sheet.FreshSheet);
    EXPECT_FALSE(frmMain.Command5[0].enabled || frmMain.mnuSave.enabled);
    EXPECT_TRUE(frmMain.mnuBar.enabled && frmMain.mnuDotCurve.enabled);
}
