#include "statistics/laboratory.h"

#include "core/program_test.h"
#include "platform/code_page.h"
#include "statistics/recount.h"
#include "statistics/sheet_concentrations.h"

namespace {

const std::string heads = "sample,tablets,tablet_mean,tablet_sd,quantity,quantity_unit,quantity_sd,depth_top,"
                          "depth_bottom,age_top,age_bottom\r\n";

TEST(LabFile, ComesBackAsItWasWritten)
{
    const std::vector<LabRow> rows = {
        {"12.5", {"1", "18584", "371", "1.0", "ml", "0.05", "12", "13", "-50", "120"}},
        {"a, b", {"2", "", "", "", "g, dry"}},
        {" \xE9 ", {"", "", "", "", "\tdry g"}}};
    const std::string text = labText("Lycopodium, batch 3", rows);
    EXPECT_EQ(text.substr(0, 3), "\xEF\xBB\xBF") << "a letter beyond ASCII occurs";
    const LabTable table = readLabText(fileTextInCodePage(text));
    EXPECT_EQ(table.fault, "");
    EXPECT_EQ(table.marker, "Lycopodium, batch 3");
    ASSERT_EQ(table.rows.size(), 3u);
    for (std::size_t row = 0; row < rows.size(); ++row) {
        EXPECT_EQ(table.rows[row].sample, rows[row].sample);
        EXPECT_EQ(table.rows[row].fields, rows[row].fields);
    }
    EXPECT_EQ(labText("Lycopodium", {{"390", {"1", "18584"}}}),
              "# marker: Lycopodium\r\n" + heads + "390,1,18584,,,,,,,,\r\n");
}

TEST(LabFile, TakesWhatASpreadsheetHasSaved)
{
    const LabTable table =
        readLabText("# marker: Lycopodium,,,,,,,,,,\n" + heads.substr(0, heads.size() - 2) +
                    "\n390,1,18584,371,1.0,ml,,,,,\n\n");
    EXPECT_EQ(table.fault, "");
    EXPECT_EQ(table.marker, "Lycopodium");
    ASSERT_EQ(table.rows.size(), 1u);
    EXPECT_EQ(table.rows[0].fields[labQuantityUnit], "ml");
    EXPECT_EQ(readLabText("").fault, "");
    EXPECT_EQ(readLabText(heads + "390,1,2,3,4,ml,0.1,1,2,3,4\r\n").rows.size(), 1u) << "without a marker";
}

TEST(LabFile, SaysWhatItCannotRead)
{
    const auto fault = [](const std::string& text) { return readLabText(text).fault; };
    EXPECT_EQ(fault("depth,count\r\n1,2\r\n"), "line 1: not the names of the columns");
    EXPECT_EQ(fault("# marker: Lycopodium\r\n"), "line 2: not the names of the columns");
    EXPECT_EQ(fault("# marker: A,b\r\n" + heads), "line 1: more than the name of the marker");
    EXPECT_EQ(fault(heads + "390,1,18 584,,,,,,,,\r\n"), "line 2: tablet_mean is \"18 584\"");
    EXPECT_EQ(fault(heads + "390,1,\"18584,5\",,,,,,,,\r\n"), "line 2: tablet_mean is \"18584,5\"");
    EXPECT_EQ(fault(heads + "390,-1,,,,,,,,,\r\n"), "line 2: tablets is \"-1\"");
    EXPECT_EQ(fault(heads + "390,1e3,,,,,,,,,\r\n"), "line 2: tablets is \"1e3\"");
    EXPECT_EQ(fault(heads + "390,1\r\n"), "line 2: 2 fields, not 11");
    EXPECT_EQ(fault(heads + "390,1,2,3,4,ml,0,1,2,3,4,note\r\n"), "line 2: 12 fields, not 11");
    EXPECT_EQ(fault(heads + ",1,,,,,,,,,\r\n"), "line 2: no name of a sample");
    // A mark that is never closed, or stands within a field, would take the rest of the file with it.
    EXPECT_EQ(fault(heads + "390,,,,,\"ml,,,,,\r\n400,,,,,,,,,,\r\n"),
              "line 2: a quotation mark within a field");
    EXPECT_EQ(fault(heads + "\"a \"\"b\"\"\",,,,,,,,,,\r\n"), "line 2: a quotation mark within a field");
}

TEST(LabFile, LiesBesideTheSheet)
{
}

class LaboratoryTest : public ProgramTest {
protected:
    const std::string path = "/cores/Lake1.lab.csv";

    LaboratoryTest()
    {
        addSamples(3);
        sheet.SheetPath = "/cores/Lake1.csv";
        sheet.TaxonRecord[7].Name = "Lycopodium";
        recount = {};
        readLaboratory();
    }
    ~LaboratoryTest() override { laboratory = {}; }
    std::string onDisk() { return files.contents[path]; }
};

TEST_F(LaboratoryTest, IsWrittenWholeWithEachChangeAndReadAgain)
{
    EXPECT_EQ(files.contents.count(path), 0u) << "a sheet without such data gets no file";
    chooseMarker("Lycopodium");
    EXPECT_EQ(onDisk(), "# marker: Lycopodium\r\n" + heads);
    EXPECT_EQ(markerSlot(), 7);
    EXPECT_TRUE(setLabField(2, labTablets, "1"));
    EXPECT_TRUE(setLabField(2, labTabletMean, "18584"));
    EXPECT_FALSE(setLabField(2, labQuantity, "one"));
    EXPECT_EQ(onDisk(), "# marker: Lycopodium\r\n" + heads + "20,1,18584,,,,,,,,\r\n");
    EXPECT_EQ(copyPreparation(2), 2);
    EXPECT_EQ(copyPreparation(2), 0);

    readLaboratory();
    EXPECT_EQ(laboratory.marker, "Lycopodium");
    EXPECT_EQ(labFields(3)[labTabletMean], "18584");
    EXPECT_EQ(preparationOf(labFields(2)).tabletMean, 18584);
    EXPECT_FALSE(accumulationOf(labFields(2)));
}

TEST_F(LaboratoryTest, FollowsSamplesThatAreRenamedOrMoved)
{
    setLabField(2, labTablets, "2");
    sheet.SampleField(2, 2) = "21.5";
    followSavedSheet();
    EXPECT_EQ(onDisk(), "# marker:\r\n" + heads + "21.5,2,,,,,,,,,\r\n");
    std::swap(sheet.SampleField(2, 1), sheet.SampleField(3, 1));
    std::swap(sheet.SampleField(2, 2), sheet.SampleField(3, 2));
    EXPECT_EQ(labFields(3)[labTablets], "2");
    EXPECT_EQ(labFields(2)[labTablets], "");
}

TEST_F(LaboratoryTest, KeepsRowsOfSamplesThatTheSheetHasNot)
{
    files.contents[path] = heads + "gone,5,,,,,,,,,\r\n20,1,,,,,,,,,\r\n";
    readLaboratory();
    setLabField(1, labTablets, "3");
    EXPECT_EQ(onDisk(), "# marker:\r\n" + heads + "gone,5,,,,,,,,,\r\n20,1,,,,,,,,,\r\n10,3,,,,,,,,,\r\n");
}

TEST_F(LaboratoryTest, LeavesAloneWhatItCannotRead)
{
    files.contents[path] = heads + "20,one,,,,,,,,,\r\n";
    const std::string before = onDisk();
    dialogs.expect("The laboratory data in /cores/Lake1.lab.csv cannot be read and stay as they are: line 2: "
                   "tablets is \"one\".",
                   "Laboratory data");
    readLaboratory();
    EXPECT_NE(laboratory.trouble, "");
    setLabField(1, labTablets, "3");
    chooseMarker("Lycopodium");
    EXPECT_EQ(onDisk(), before);

    const std::string tooLarge(17u << 20, ' ');
    files.contents[path] = tooLarge;
    dialogs.expect("The laboratory data in /cores/Lake1.lab.csv cannot be read and stay as they are.",
                   "Laboratory data");
    readLaboratory();
    setLabField(1, labTablets, "3");
    EXPECT_EQ(onDisk(), tooLarge);
}

TEST_F(LaboratoryTest, TellsTheConcentrationsOfTheSums)
{
    chooseMarker("Lycopodium");
    sheet.Count(2, 7) = 50;
    sheet.Count(2, 1) = 300;
    EXPECT_FALSE(concentrationOfSums(2)) << "no tablets are known";
    const LabFields fields = {"1", "18584", "371", "1", "ml", "0.05"};
    for (int column = 0; column < labColumns; ++column)
        setLabField(2, static_cast<LabColumn>(column), fields[column]);
    sheet.TaxonRecord[1].Subtotal2 = "1";
    const auto found = concentrationOfSums(2);
    ASSERT_TRUE(found && found->sums[0]);
    EXPECT_NEAR(found->sums[0]->value, 111504, 1e-6);
    EXPECT_NEAR(found->sums[0]->upper, 160530.2037, 1e-3);
    EXPECT_EQ(found->sums[1]->value, 0) << "no taxon of it was seen";
    EXPECT_EQ(found->sums[1]->upper, 0);
    EXPECT_EQ(found->sums[2], found->sums[0]);
    EXPECT_EQ(found->unit, "ml");
    EXPECT_FALSE(concentrationOfSums(1));
    recount.hiddenSerial = wholeNumber(sheet.SampleField(2, 1));
    EXPECT_FALSE(concentrationOfSums(2)) << "while it is counted again";
}

TEST_F(LaboratoryTest, LeavesAloneWhatAnotherProgramHasChanged)
{
    setLabField(1, labTablets, "1");
    files.contents[path] += "30,7,,,,,,,,,\r\n";
    const std::string theirs = onDisk();
    dialogs.expect(
        "Another program has changed /cores/Lake1.lab.csv. It stays as it is; open the sheet again to "
        "read it.",
        "Laboratory data");
    setLabField(1, labTablets, "2");
    setLabField(1, labTablets, "3");
    EXPECT_EQ(onDisk(), theirs);
}

TEST_F(LaboratoryTest, LeavesAloneAFileThatCameMeanwhile)
{
    files.contents[path] = heads + "20,1,,,,,,,,,\r\n";
    const std::string theirs = onDisk();
    dialogs.expect(
        "Another program has changed /cores/Lake1.lab.csv. It stays as it is; open the sheet again to "
        "read it.",
        "Laboratory data");
    setLabField(1, labTablets, "2");
    EXPECT_EQ(onDisk(), theirs);
}

TEST_F(LaboratoryTest, SaysThatItCannotWriteAndTriesAgainWithTheSheet)
{
    files.unwritable.insert(path);
    dialogs.expect("The laboratory data cannot be written: /cores/Lake1.lab.csv", "Laboratory data");
    setLabField(1, labTablets, "1");
    EXPECT_TRUE(laboratory.unsaved);
    files.unwritable.clear();
    followSavedSheet();
    EXPECT_EQ(onDisk(), "# marker:\r\n" + heads + "10,1,,,,,,,,,\r\n");
    EXPECT_FALSE(laboratory.unsaved);

    const std::string before = onDisk();
    files.room = 10; // a full disk
    dialogs.expect("The laboratory data cannot be written: /cores/Lake1.lab.csv", "Laboratory data");
    setLabField(1, labTablets, "2");
    EXPECT_EQ(onDisk(), before);
}

TEST_F(LaboratoryTest, GoesAlongWhenTheSheetGetsAnotherName)
{
    setLabField(1, labTablets, "1");
    const std::string data = onDisk();
    sheet.SheetPath = "/cores/Lake2.csv";
    followSavedSheet();
    EXPECT_EQ(files.contents["/cores/Lake2.lab.csv"], data);
    EXPECT_EQ(onDisk(), data);

    files.contents["/cores/Lake3.lab.csv"] = heads + "20,9,,,,,,,,,\r\n";
    sheet.SheetPath = "/cores/Lake3.csv";
    dialogs.expect(
        "There are laboratory data beside this name already:\r\n/cores/Lake3.lab.csv\r\nDo you write "
        "those of this sheet over them?",
        "Laboratory data", Answer::no);
    followSavedSheet();
    EXPECT_EQ(labFields(2)[labTablets], "9") << "those that were there are kept, and are the sheet's now";
    EXPECT_EQ(labFields(1)[labTablets], "");
}

TEST_F(LaboratoryTest, NoSheetFileNoData)
{
    sheet.SheetPath.clear();
    readLaboratory();
    chooseMarker("Lycopodium");
    EXPECT_EQ(files.contents.size(), 0u);
}

TEST(Accumulation, IsDepthAYear)
{
    const LabFields fields = {"", "", "", "", "", "", "12", "13", "-50", "150"};
    ASSERT_TRUE(accumulationOf(fields));
    EXPECT_DOUBLE_EQ(accumulationOf(fields)->rate, 0.005);
    EXPECT_FALSE(accumulationOf({"", "", "", "", "", "", "12", "13", "150", "-50"}))
        << "the older lies below";
    EXPECT_FALSE(accumulationOf({"", "", "", "", "", "", "12", "12", "1", "2"}));
}

} // namespace
