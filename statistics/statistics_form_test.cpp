#include "statistics/statistics_form.h"

#include "core/program_test.h"
#include "files/open_sheet.h"
#include "platform/code_page.h"
#include "sheet/basis.h"
#include "statistics/laboratory.h"
#include "statistics/recount.h"
#include "statistics/reference_test.h"
#include "statistics/statistics_line.h"
#include "statistics/statistics_pages.h"
#include "statistics/watch_counts.h"

#include <algorithm>
#include <iterator>

namespace {

/// The delivered pollen sheet, opened, with its first sample on show.
class StatisticsWindowTest : public ProgramTest {
protected:
    HandTimer pause;

    StatisticsWindowTest()
    {
        frmStatistics = {};
        laboratory = {};
        recount = {};
        statisticsLine = {};
        ports.statisticsTimer = &pause;
        std::ifstream file(std::string(EXAMPLES) + "/dallican_pollen.csv", std::ios::binary);
        const std::string text{std::istreambuf_iterator<char>(file), {}};
        openSheetText(text, "/cores/dallican_pollen.csv", {});
        show(1);
        readLaboratory();
    }
    ~StatisticsWindowTest() override
    {
        frmStatistics = {};
        laboratory = {};
        recount = {};
        statisticsLine = {};
    }
    static void show(int sample)
    {
        sheet.CurrentSample = sample;
        for (int slot = 1; slot <= taxonSlots; ++slot)
            frmMain.Text2[slot].text = decimalText(sheet.Count(sample, slot));
    }
    static void open(StatisticsPage page)
    {
        frmStatistics.SSTab1 = page;
        mnuStatistics_Click();
    }
    static const StatTable& table() { return frmStatistics.tables[frmStatistics.SSTab1]; }
    /// The text in a column of the row whose first cell is `first`.
    static std::string at(const std::string& first, const std::string& head)
    {
        for (const StatTable::Row& row : table().rows)
            for (std::size_t column = 0; column < row.cells.size(); ++column)
                if (row.cells[0].text == first && table().columns[column].head == head)
                    return row.cells[column].text;
        return "no " + first + ", " + head;
    }
    std::string saved(const std::string& path)
    {
        dialogs.paths.push_back(path);
        frmStatistics_Command1_Click();
        return files.contents[path];
    }
    static int slotOf(const std::string& name)
    {
        for (int slot = 1; slot <= taxonSlots; ++slot)
            if (sheet.TaxonRecord[slot].Name == name)
                return slot;
        return 0;
    }
};

std::vector<std::string> linesOf(const std::string& text)
{
    std::vector<std::string> lines;
    std::istringstream rest(text);
    for (std::string line; std::getline(rest, line);)
        lines.push_back(line.substr(0, line.find('\r')));
    return lines;
}

TEST_F(StatisticsWindowTest, RichnessOfOneSampleAndOfAll)
{
    open(richnessPage);
    EXPECT_EQ(frmStatistics.Label1.caption, "Sample 390, % basis: All total");
    EXPECT_EQ(at("Individuals", "Value"), "620");
    EXPECT_EQ(at("Chao1", "Value"), "22.0");
    EXPECT_EQ(at("Coverage %", "Value"), "99.4");
    EXPECT_EQ(at("New in next 100", "Value"), "0.6");
    EXPECT_EQ(at("E(S) at 100", "Value"), "10.6");
    EXPECT_NE(at("E(S) at 150", "Value"), "");
    frmStatistics_Text1_Edited("700", 3);
    EXPECT_EQ(at("E(S) at 700", "Value"), "") << "more than were counted";
    EXPECT_FALSE(frmStatistics.Picture1.picture.marks.empty());

    frmStatistics_Option1_Click(1);
    EXPECT_EQ(table().rows.size(), 63u);
    EXPECT_EQ(at("394", "Chao1"), "34.0");
    EXPECT_NE(copiedStatistics().find("\r\n394\t542\t16\t"), std::string::npos);
}

TEST_F(StatisticsWindowTest, SavedRichnessIsTheReferenceTable)
{
    open(richnessPage);
    frmStatistics_Option1_Click(1);
    const std::vector<std::string> lines = linesOf(saved("/out.csv"));
    EXPECT_EQ(dialogs.proposed, "/cores/dallican_pollen_richness.csv");
    std::ifstream file(std::string(REFERENCE) + "/diversity.csv");
    std::size_t at = 0;
    for (std::string line; std::getline(file, line); ++at)
        EXPECT_EQ(lines[at], line);
    EXPECT_EQ(lines.size(), 64u);
}

TEST_F(StatisticsWindowTest, LimitsAreSortedByAClickOnAHead)
{
    open(limitsPage);
    const std::string first = table().rows[0].cells[0].text;
    sortStatistics(1);
    EXPECT_NEAR(table().rows[0].cells[1].value, table().rows[0].bars[0]->value * 620, 1e-9);
    for (std::size_t row = 1; row < table().rows.size(); ++row)
        EXPECT_LE(table().rows[row].cells[1].value, table().rows[row - 1].cells[1].value);
    refreshStatistics();
    EXPECT_GE(table().rows[0].cells[1].value, table().rows[1].cells[1].value) << "it stays sorted";
    sortStatistics(1);
    EXPECT_EQ(table().rows[0].cells[1].text, "0");
    sortStatistics(0);
    EXPECT_LT(table().rows[0].cells[0].text, table().rows[1].cells[0].text);
    frmStatistics_Text2_Edited("2", 1);
    EXPECT_EQ(table().columns.back().head, "More for +-2 %");
    EXPECT_EQ(statisticsLine.halfWidth, 2);
}

TEST_F(StatisticsWindowTest, LimitsOfATaxonOutsideTheSum)
{
    selectBasis(1);
    int outside = 0;
    for (int slot = 1; slot <= taxonSlots && outside == 0; ++slot)
        if (sheet.TaxonRecord[slot].Subtotal1 == "0" && sheet.Count(1, slot) > 0)
            outside = slot;
    open(limitsPage);
    const std::string name = sheet.TaxonRecord[outside].Name;
    EXPECT_EQ(at(name, "Sum"), "outside");
    const BasisCounts counts = countsOf(1);
    const Limits limits = *limitsOutside(counts.all[outside], counts.sum);
    bool found = false;
    for (const std::string& line : linesOf(saved("/out.csv")))
        if (line.find(name) != std::string::npos &&
            line.find(",0," + decimalText(counts.all[outside])) != std::string::npos) {
            found = true;
            const double upper = std::stod(line.substr(line.rfind(',') + 1));
            EXPECT_MATCHES(upper, 100 * limits.upper);
        }
    EXPECT_TRUE(found);
}

TEST_F(StatisticsWindowTest, FollowsTheCountingWhenTheHandPauses)
{
    open(richnessPage);
    watchCounts();
    EXPECT_EQ(pause.milliseconds, 0) << "nothing has changed";
    ++sheet.Count(1, 1);
    watchCounts();
    EXPECT_GT(pause.milliseconds, 0);
    EXPECT_EQ(at("Individuals", "Value"), "620");
    StatisticsTimer_Timer();
    EXPECT_EQ(at("Individuals", "Value"), "621");
}

TEST_F(StatisticsWindowTest, ComparesTwoSamples)
{
    open(comparePage);
    pickFirstSample("390");
    pickSecondSample("652");
    EXPECT_NE(frmStatistics.Label2.caption.find("Percentage similarity "), std::string::npos);
    EXPECT_NE(frmStatistics.Label2.caption.find("degrees of freedom, p < 0.0001"), std::string::npos)
        << frmStatistics.Label2.caption;
    bool apart = false;
    for (const StatTable::Row& row : table().rows)
        apart = apart || row.cells.back().text == "apart";
    EXPECT_TRUE(apart);
    pickSecondSample("390");
    EXPECT_NE(frmStatistics.Label2.caption.find("similarity 100.0 %. Chi-square 0 with"), std::string::npos);
    const std::vector<std::string> lines = linesOf(saved("/out.csv"));
    EXPECT_EQ(lines.size(), table().rows.size() + 1);
    EXPECT_EQ(lines[1].substr(lines[1].rfind(',')), ",0");
}

TEST_F(StatisticsWindowTest, RecountGoesTheWayOfTheNextSampleAndHidesItsSums)
{
    open(comparePage);
    EXPECT_TRUE(frmStatistics.Command3.enabled);
    setLabField(1, labTablets, "2");
    frmStatistics_Command3_Click();
    EXPECT_EQ(sheet.SampleCount, 64);
    EXPECT_EQ(sheet.SampleField(sheet.CurrentSample, 2), "390 recount");
    EXPECT_EQ(frmMain.Combo2.text, "390 recount");
    EXPECT_EQ(sheet.ActionText.back().find("(New sample: 390 recount)") == std::string::npos, false);
    EXPECT_EQ(labFields(sheet.CurrentSample)[labTablets], "2") << "prepared as the first count was";
    EXPECT_TRUE(areSumsHidden());
    EXPECT_FALSE(frmStatistics.Command3.enabled);
    const std::vector<std::string>& offered = frmStatistics.Combo1[1].items;
    EXPECT_EQ(std::count(offered.begin(), offered.end(), "390 recount"), 0);
    frmStatistics_SSTab1_Click(richnessPage);
    EXPECT_TRUE(table().rows.empty());
    frmStatistics_Option1_Click(1);
    EXPECT_EQ(table().rows.size(), 63u);

    frmStatistics_SSTab1_Click(comparePage);
    frmStatistics_Command4_Click();
    EXPECT_FALSE(areSumsHidden());
    EXPECT_EQ(frmStatistics.Combo1[0].text, "390");
    EXPECT_EQ(frmStatistics.Combo1[1].text, "390 recount");
}

TEST_F(StatisticsWindowTest, NoRecountBeyondTheLastSampleOfASheet)
{
    open(comparePage);
    sheet.SampleCount = sampleLimit;
    dialogs.expect("Sample number reached 250. Please create new data sheet.", "Format regulation");
    frmStatistics_Command3_Click();
    EXPECT_EQ(recount.hiddenSerial, 0);
    EXPECT_EQ(sheet.SampleCount, sampleLimit);
}

TEST_F(StatisticsWindowTest, ConcentrationOfTaxaAndSums)
{
    open(concentrationPage);
    EXPECT_EQ(frmStatistics.Label3.caption, "Choose the taxon that was added as a marker.");
    const int marker = slotOf("Betula");
    ASSERT_GT(marker, 0);
    pickMarker("Betula");
    EXPECT_NE(frmStatistics.Label3.caption.find("Tablets, grains a tablet and quantity are needed."),
              std::string::npos);
    EXPECT_NE(frmStatistics.Label3.caption.find("inside the % basis All total"), std::string::npos);
    const char* const entries[] = {"1", "18584", "371", "1.0", "ml", "0.05"};
    for (int column = 0; column < labDepthTop; ++column) {
        frmStatistics.Text3[column].text = entries[column];
        frmStatistics_Text3_LostFocus();
    }
    const double y = sheet.Count(1, marker);
    const Concentration all = *concentrationOf(620 - y, y, {1, 18584, 371, 1.0, 0.05});
    EXPECT_EQ(at("All total", "Count"), decimalText(static_cast<long long>(620 - y)));
    EXPECT_FALSE(at("All total", "Concentration per ml").empty());
    EXPECT_NE(frmStatistics.Label3.caption.find(" to go for an error of 10 % of the all total"),
              std::string::npos)
        << frmStatistics.Label3.caption;
    frmStatistics_Text4_Edited("1", 1);
    EXPECT_NE(frmStatistics.Label3.caption.find("No count is enough"), std::string::npos);

    const std::vector<std::string> lines = linesOf(saved("/out.csv"));
    EXPECT_EQ(lines[0], "sample,taxon,x,y,concentration,standard_error,relative_error,lower,upper");
    std::istringstream fields(lines[1]);
    std::vector<std::string> first;
    for (std::string field; std::getline(fields, field, ',');)
        first.push_back(field);
    EXPECT_EQ(first[1], "All total");
    EXPECT_NEAR(std::stod(first[4]), all.value, 1e-6 * all.value);
    EXPECT_NEAR(std::stod(first[8]), all.limits->upper, 1e-6 * all.limits->upper);

    frmStatistics.Text3[labQuantity].text = "one";
    dialogs.expect("Please input digit(s).", "Error");
    frmStatistics_Text3_LostFocus();
    EXPECT_EQ(frmStatistics.Text3[labQuantity].text, "1.0");
    frmStatistics_SSTab1_Click(richnessPage);
    EXPECT_EQ(at("Individuals", "Value"), decimalText(static_cast<long long>(620 - y)));
    EXPECT_NE(frmStatistics.Label1.caption.find("Betula is inside it"), std::string::npos);
}

TEST_F(StatisticsWindowTest, EntriesBelongToTheSampleTheyWereTypedFor)
{
    open(concentrationPage);
    frmStatistics.Text3[labTablets].text = "3"; // the visit of the box goes on
    show(2);
    watchCounts();
    StatisticsTimer_Timer();
    EXPECT_EQ(labFields(1)[labTablets], "3");
    EXPECT_EQ(labFields(2)[labTablets], "");
    EXPECT_EQ(frmStatistics.Text3[labTablets].text, "");
}

TEST_F(StatisticsWindowTest, ATableThatCannotBeWrittenIsSaid)
{
    open(limitsPage);
    files.unwritable.insert("/locked.csv");
    dialogs.paths.push_back("/locked.csv");
    dialogs.expect("The file is being used by another software. Please close the file and try again.",
                   "Error");
    frmStatistics_Command1_Click();
    dialogs.paths.push_back(std::nullopt);
    frmStatistics_Command1_Click();
}

} // namespace
