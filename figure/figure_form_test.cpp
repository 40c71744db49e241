#include "figure/figure_form.h"

#include "core/program_test.h"
#include "figure/caption.h"
#include "figure/settings_file.h"
#include "platform/fakes/json_drawer.h"

#include "figure/example_sheet_test.h"

namespace {

class FigureWindowTest : public ProgramTest {
protected:
    HandTimer figureTimer;
    JsonDrawer json;

    FigureWindowTest()
    {
        sheet = exampleSheet("dallican_pollen");
        frmFigure = {};
        ports.figureTimer = &figureTimer;
        ports.json = &json;
    }

    static constexpr const char* settingsFile = "/dallican_pollen.figure.json";
};

TEST_F(FigureWindowTest, settingsStayWithTheSheetAndAreNeverWrittenUnasked)
{
    mnuFigure_Click();
    EXPECT_TRUE(frmFigure.visible);
    FigureSettings settings = frmFigure.settings;
    settings.threshold = 5;
    settings.groups = {{"Mine", groupColour(3), {"Betula"}}};
    changeFigure(settings);
    EXPECT_EQ(files.contents.count(settingsFile), 0);
    figureSheetGoes();
    EXPECT_FALSE(frmFigure.visible);
    mnuFigure_Click();
    EXPECT_EQ(frmFigure.settings, settings) << "changed, not kept, and still there in this run";

    mnuFigureKeep_Click();
    EXPECT_EQ(files.contents.count(settingsFile), 1);
    json.written.back().set("of a later version", Json::of(7.0));
    figureSheetGoes();
    mnuFigure_Click();
    EXPECT_EQ(frmFigure.settings, settings);
    settings.plus = false;
    changeFigure(settings);
    dialogs.paths = {"/out/figure.SVG"};
    mnuFigureSave_Click();
    EXPECT_NE(files.contents["/out/figure.SVG"].find("as svg bytes at 600"), std::string::npos);
    EXPECT_NE(json.written.back().find("of a later version"), nullptr) << "what is not known is kept";
    EXPECT_EQ(settingsFromJson(json.written.back()).settings, settings);
}

TEST_F(FigureWindowTest, brokenAndForeignSettingsAreSaidAndLeftAlone)
{
    files.contents[settingsFile] = "no json at all";
    mnuFigure_Click();
    EXPECT_EQ(frmFigure.settings, FigureSettings());
    EXPECT_NE(frmFigure.notice.find("holds no settings of a figure"), std::string::npos);
    dialogs.expect(std::string(settingsFile) + " holds no settings of a figure. Write over it?", "Caution!",
                   Answer::no);
    mnuFigureKeep_Click();
    EXPECT_EQ(files.contents[settingsFile], "no json at all");

    Json odd = Json::object();
    odd.set("width", Json::of(5.0));
    odd.set("order", Json::of(std::string("upside down")));
    odd.set("cuts", Json::of(std::string("476")));
    odd.set("height", Json::of(150.0));
    const ReadSettings read = settingsFromJson(odd);
    EXPECT_EQ(read.findings.size(), 3);
    EXPECT_EQ(read.settings.width, 180);
    EXPECT_EQ(read.settings.height, 150);
    EXPECT_FALSE(read.foreign);
    EXPECT_TRUE(settingsFromJson(Json::object()).foreign);
}

TEST_F(FigureWindowTest, allSettingsComeBackFromTheirFile)
{
    FigureSettings settings;
    double value = 31;
    for (const NumberSetting& setting : numberSettings)
        settings.*setting.member = std::min(setting.most, std::max(setting.least, value++ / 7));
    settings.header = 40;
    settings.depthFrom = -3.5;
    settings.samples = 4;
    settings.taxa = {{"B", "A"}};
    settings.slants = {{"A", NameSlant::plain}};
    settings.order = TaxonOrder::wa;
    settings.basis = FigureBasis::sub2;
    settings.slant = NameSlant::italic;
    settings.style = {false, true, true, false, true};
    settings.fill = GroupFill::hatches;
    settings.plus = settings.headings = false;
    settings.ages = {{1, 2}, {3, 4}};
    settings.cuts = {1.5};
    settings.prefix = "";
    settings.zoneNames = {"", "x"};
    settings.zonesBy = ZonesBy::hand;
    settings.method = ClusterMethod::unweighted;
    settings.transform = Transform::none;
    settings.groups = {{"G", RGB(1, 2, 0xFE), {"A"}}, {"H", RGB(0, 0, 0), {}}};
    settings.title = "T";
    settings.dotsPerInch = 300;
    const ReadSettings read = settingsFromJson(settingsToJson(settings, {}));
    EXPECT_EQ(read.settings, settings);
    EXPECT_TRUE(read.findings.empty());
}

TEST_F(FigureWindowTest, itFollowsTheCountsWhenTheHandPauses)
{
    mnuFigure_Click();
    const int before = frmFigure.planRevision;
    sheet.Count(1, sheet.KeyIndexOfRow[47]) += 100;
    figureMayHaveChanged();
    EXPECT_EQ(figureTimer.milliseconds, 300);
    EXPECT_EQ(frmFigure.planRevision, before);
    FigureTimer_Timer();
    EXPECT_EQ(frmFigure.planRevision, before + 1);
    FigureTimer_Timer();
    EXPECT_EQ(frmFigure.planRevision, before + 1) << "nothing has changed";
    closeFigure();
    figureTimer.stop();
    figureMayHaveChanged();
    EXPECT_EQ(figureTimer.milliseconds, 0) << "a closed window costs nothing";
}

TEST_F(FigureWindowTest, whatLeavesTheProgram)
{
    mnuFigure_Click();
    FigureSettings settings = frmFigure.settings;
    settings.width = 240;
    settings.height = 150;
    changeFigure(settings);
    mnuFigureCopy_Click();
    ASSERT_EQ(pictures.copiedPages.size(), 1);
    mnuFigureCaption_Click();
    EXPECT_EQ(
        pictures.copiedText,
        "dallican_pollen. Percent of all individuals. 63 samples, 15 taxa with at least 2 % in 2 samples; "
        "32 taxa are not shown. Grey: exaggerated 10 times, taxa that stay below 5 %. +: below 0.5 %. "
        "Clusters: CONISS (Grimm 1987), square roots, of all taxa. Zones DAL-1 to DAL-3 by the broken stick "
        "(Bennett 1996), with boundaries at 476 and 547 cm.");
    const std::string merges = mergesTable(frmFigure.plan.clusters);
    EXPECT_NE(merges.find("\r\n1,2,2,3,3,0.009220967984,0.009220967984\r\n"), std::string::npos);
    EXPECT_NE(sticksTable(frmFigure.plan.clusters).find("\r\n2,3.445927349,0.5036476472,1\r\n"),
              std::string::npos);

    settings.width = 60;
    changeFigure(settings);
    EXPECT_FALSE(frmFigure.plan.faults.empty());
    EXPECT_FALSE(frmFigure.fit.empty());
    std::string text;
    for (const std::string& fault : frmFigure.plan.faults)
        text += fault + "\n";
    dialogs.expect(text + frmFigure.fit, "Error");
    mnuFigureCopy_Click();
    EXPECT_EQ(pictures.copiedPages.size(), 1);
}

TEST_F(FigureWindowTest, agesAreReadAsPeopleWriteThem)
{
    const std::vector<DatedDepth> ages = {{10, 100}, {20.5, -3}};
    EXPECT_EQ(agesIn("depth,age\r\n10,100\r\n20.5,-3\r\n"), ages);
    EXPECT_EQ(agesIn("10\t100\n\n20.5 ; -3"), ages);
    EXPECT_EQ(agesIn("Tiefe;Alter\n10,0;100\n20,5;-3"), ages) << "a comma between digits";
    EXPECT_TRUE(agesIn("").empty());
}

} // namespace
