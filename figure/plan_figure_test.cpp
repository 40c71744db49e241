#include "figure/example_sheet_test.h"
#include "figure/plan_figure.h"
#include "platform/page_svg.h"

#include <cmath>

namespace {

FigureSettings referenceSettings()
{
    FigureSettings settings;
    settings.width = 240;
    settings.height = 150;
    settings.header = 38;
    settings.order = TaxonOrder::groupWa;
    return settings;
}

FigurePlan dallican(const FigureSettings& settings)
{
    return planFigure(exampleData("dallican_pollen"), settings, evenLetters);
}

const PageGroup* groupOf(const Page& page, const std::string& id)
{
    for (const PageGroup& group : page.groups)
        if (group.id == id)
            return &group;
    return nullptr;
}

constexpr double hundredth = 0.01;

TEST(PlanFigure, columnsAndPanelsStandWhereTheTableSays)
{
    const FigurePlan plan = dallican(referenceSettings());
    EXPECT_TRUE(plan.faults.empty()) << plan.faults[0];
    const auto table = tableOf(REFERENCE "/figure_columns.csv");
    ASSERT_EQ(plan.layout.columns.size(), 15);
    for (std::size_t i = 0; i < 15; ++i) {
        const FigureColumn& column = plan.layout.columns[i];
        const auto& line = table[i + 1];
        EXPECT_EQ(plan.data.taxa[column.shown.taxon].name, line[2]);
        EXPECT_EQ(column.shown.group + 1, std::stoi(line[3]));
        EXPECT_NEAR(column.left, std::stod(line[4]), hundredth);
        EXPECT_NEAR(column.width, std::stod(line[5]), hundredth);
        EXPECT_EQ(column.reach, std::stod(line[6]));
        EXPECT_NEAR(column.largest, std::stod(line[7]), 1e-6);
        EXPECT_EQ(column.labelStep, std::stod(line[8]));
        EXPECT_NEAR(plan.layout.mmPerPercent, std::stod(line[9]), 1e-6);
        const PageGroup* const group = groupOf(plan.page, "taxon-" + line[1]);
        ASSERT_NE(group, nullptr);
        EXPECT_EQ(group->title, line[2]);
        EXPECT_NEAR(*group->left, std::stod(line[4]), hundredth);
        EXPECT_NEAR(*group->width, std::stod(line[5]), hundredth);
    }
    for (std::size_t i = 16; i < table.size(); ++i) {
        const PageGroup* const panel = groupOf(plan.page, table[i][2]);
        ASSERT_NE(panel, nullptr) << table[i][2];
        EXPECT_NEAR(*panel->left, std::stod(table[i][4]), hundredth);
        EXPECT_NEAR(*panel->width, std::stod(table[i][5]), hundredth);
    }
}

TEST(PlanFigure, samplesAndZonesStandWhereTheTableSays)
{
    const FigurePlan plan = dallican(referenceSettings());
    const auto samples = tableOf(REFERENCE "/figure_samples.csv");
    ASSERT_EQ(plan.layout.y.size(), samples.size() - 1);
    for (std::size_t i = 0; i < plan.layout.y.size(); ++i) {
        EXPECT_EQ(plan.data.samples[i].name, samples[i + 1][2]);
        EXPECT_NEAR(plan.layout.y[i], std::stod(samples[i + 1][4]), hundredth);
    }
    const auto zones = tableOf(REFERENCE "/figure_zones.csv");
    ASSERT_EQ(plan.zones.size(), zones.size() - 1);
    for (std::size_t i = 0; i < plan.zones.size(); ++i) {
        const auto& line = zones[i + 1];
        EXPECT_EQ(plan.zones[i].name, line[1]);
        EXPECT_EQ(plan.zones[i].firstSample + 1, std::stoi(line[2]));
        EXPECT_EQ(plan.zones[i].lastSample + 1, std::stoi(line[3]));
        if (!line[4].empty()) {
            EXPECT_EQ(plan.zones[i].lowerLine, std::stod(line[4]));
            EXPECT_NEAR(plan.zones[i].bottom, std::stod(line[5]), hundredth);
        }
    }
}

TEST(PlanFigure, orderAndPlaceOfSamplesGoByDepth)
{
    SheetState sheet = exampleSheet("dallican_pollen");
    const FigureData before = figureData(sheet, "/dallican_pollen.csv");
    const int samples = sheet.SampleCount;
    SheetState turned = sheet;
    for (int sample = 1; sample <= samples; ++sample) {
        turned.SampleField(sample, 2) = sheet.SampleField(samples + 1 - sample, 2);
        for (int slot = 1; slot <= taxonSlots; ++slot)
            turned.Count(sample, slot) = sheet.Count(samples + 1 - sample, slot);
    }
    const FigurePlan plan =
        planFigure(figureData(turned, "/dallican_pollen.csv"), referenceSettings(), evenLetters);
    const FigurePlan straight = planFigure(before, referenceSettings(), evenLetters);
    EXPECT_EQ(svgText(plan.page), svgText(straight.page)) << "a descending core is the same core";

    turned = sheet;
    turned.SampleField(5, 2) = turned.SampleField(4, 2) + " recount 2";
    EXPECT_EQ(figureData(turned, "").samples.size(), samples - 1);
    EXPECT_TRUE(figureData(turned, "").byDepth) << "a recount does not take the depth axis away";
    turned.SampleField(5, 2) = "gone recount";
    EXPECT_EQ(figureData(turned, "").samples.size(), samples);

    for (const char* const name : {"A1", "12 cm"}) {
        sheet.SampleField(7, 2) = name;
        const FigurePlan even =
            planFigure(figureData(sheet, "/dallican_pollen.csv"), referenceSettings(), evenLetters);
        EXPECT_FALSE(even.data.byDepth);
        EXPECT_NEAR(even.layout.y[2] - even.layout.y[1], even.layout.y[60] - even.layout.y[59], 1e-9);
        EXPECT_EQ(even.layout.columns[0].left, 3 + 24);
    }
}

TEST(PlanFigure, oddCoresAreDrawnAllTheSame)
{
    SheetState sheet = exampleSheet("dallican_pollen");
    sheet.SampleField(2, 2) = sheet.SampleField(1, 2); // equal depths
    sheet.SampleField(3, 2) = "398.25";
    for (int slot = 1; slot <= taxonSlots; ++slot)
        sheet.Count(30, slot) = 0; // no individuals: breaks curves, no bar
    FigurePlan plan = planFigure(figureData(sheet, "/dallican_pollen.csv"), referenceSettings(), evenLetters);
    EXPECT_TRUE(plan.faults.empty());
    EXPECT_EQ(plan.layout.y[0], plan.layout.y[1]);
    EXPECT_EQ(plan.clusters.merges.size(), 61);
    for (const PagePoint& point : plan.page.points)
        EXPECT_TRUE(std::isfinite(point.x) && std::isfinite(point.y));

    SheetState one = exampleSheet("dallican_pollen");
    one.SampleCount = 1;
    plan = planFigure(figureData(one, "/dallican_pollen.csv"), {}, evenLetters);
    EXPECT_TRUE(plan.zones.empty());
    EXPECT_EQ(groupOf(plan.page, "dendrogram"), nullptr);

    plan = planFigure(figureData(SheetTables(), ""), {}, evenLetters);
    ASSERT_EQ(plan.faults.size(), 1);
    EXPECT_EQ(plan.faults[0], "No sample has individuals in the basis.");
}

TEST(PlanFigure, rareTaxaAreExaggeratedUpToTheEdgeAndMarked)
{
    const FigurePlan plan = dallican(referenceSettings());
    const FigureColumn& elm = plan.layout.columns[0];
    const PageGroup& group = *groupOf(plan.page, "taxon-1");
    const PageMark& grey = plan.page.marks[group.first];
    EXPECT_EQ(*grey.fill, RGB(0xDD, 0xDD, 0xDD));
    double right = 0;
    for (std::uint32_t i = 0; i < grey.points; ++i)
        right = std::max(right, plan.page.points[grey.firstPoint + i].x);
    EXPECT_DOUBLE_EQ(right, elm.left + elm.width);
    // Where the curve first crosses the edge: 10 x 0.4871 % at 390 cm lies beyond it, 0.1845 % at 394 does
    // not.
    EXPECT_NEAR(plan.page.points[grey.firstPoint + 2].y, 43.354, 0.001);
    const PageMark& pine = plan.page.marks[groupOf(plan.page, "taxon-6")->first];
    EXPECT_NE(*pine.fill, RGB(0xDD, 0xDD, 0xDD)) << "above 5 % nothing is exaggerated";
}

TEST(PlanFigure, whatDoesNotFitIsRefusedWithWhatWould)
{
    FigureSettings settings;
    settings.threshold = 0;
    settings.samples = 1;
    settings.width = 140;
    const FigureData data = exampleData("dallican_pollen");
    EXPECT_EQ(planFigure(data, settings, evenLetters).faults,
              std::vector<std::string>{"47 taxa are too many for a page 140 mm wide."});
    const std::string fit = whatWouldFit(data, settings, evenLetters);
    ASSERT_NE(fit.find("A threshold of "), std::string::npos) << fit;
    settings.threshold = std::stod(fit.substr(15));
    EXPECT_TRUE(planFigure(data, settings, evenLetters).faults.empty());

    settings = referenceSettings();
    settings.header = 5;
    EXPECT_NE(planFigure(data, settings, evenLetters).faults[0].find("need a header of"), std::string::npos);
    settings = referenceSettings();
    settings.bottom = 3;
    EXPECT_NE(planFigure(data, settings, evenLetters).faults[0].find("over the lower edge"),
              std::string::npos);
}

TEST(PlanFigure, theFirstViewOfAnExampleIsAFigure)
{
    EXPECT_EQ(firstSettings(exampleData("dallican_pollen"), evenLetters), FigureSettings());
    EXPECT_EQ(firstSettings(figureData(SheetTables(), ""), evenLetters), FigureSettings());
    for (const char* const name : {"khil_phytoliths", "cradle_lake_diatoms"}) {
        const FigureData data = exampleData(name);
        const FigureSettings first = firstSettings(data, evenLetters);
        EXPECT_TRUE(planFigure(data, first, evenLetters).faults.empty()) << name;
        EXPECT_EQ(first.width, 240);
    }
}

TEST(PlanFigure, concentrationsStandInAPanelOfTheirOwn)
{
    FigureData data = exampleData("dallican_pollen");
    FigureSettings settings = referenceSettings();
    settings.concentration = 18;
    EXPECT_EQ(groupOf(planFigure(data, settings, evenLetters).page, "concentration"), nullptr);
    MeasuredConcentration measured;
    measured.unit = "ml";
    measured.sums[0] = {30000, 20000, 50000};
    data.samples[4].concentration = measured;
    measured.sums[0] = {0, 0, 0};
    data.samples[5].concentration = measured;
    const FigurePlan plan = planFigure(data, settings, evenLetters);
    EXPECT_TRUE(plan.faults.empty()) << plan.faults[0];
    const PageGroup* const panel = groupOf(plan.page, "concentration");
    ASSERT_NE(panel, nullptr);
    EXPECT_DOUBLE_EQ(*panel->left, plan.layout.total.right() + settings.panelGap);
    const double scale = 18.0 / 50000;
    const PageMark* const bar = &plan.page.marks[panel->first + 1];
    ASSERT_EQ(bar->points, 2) << "nothing was measured to be there, or nothing was measured";
    const PagePoint end = plan.page.points[bar->firstPoint + 1];
    EXPECT_NEAR(end.x, *panel->left + 30000 * scale, 1e-9);
    EXPECT_EQ(end.y, plan.layout.y[4]);
    const std::uint32_t limits = plan.page.marks[panel->first + 2].firstPoint;
    EXPECT_NEAR(plan.page.points[limits].x, *panel->left + 20000 * scale, 1e-9);
    EXPECT_NEAR(plan.page.points[limits + 1].x, *panel->left + 50000 * scale, 1e-9);
    const std::string svg = svgText(plan.page);
    EXPECT_NE(svg.find("1000 per ml"), std::string::npos);
    EXPECT_NE(svg.find("<desc>dallican_pollen. Percent of all individuals."), std::string::npos);
    EXPECT_NE(svg.find("Concentrations: all individuals by a marker, with 95 % limits"), std::string::npos);

    data.samples[7].concentration = measured;
    data.samples[7].concentration->unit = "g";
    EXPECT_EQ(planFigure(data, settings, evenLetters).faults.size(), 1) << "millilitres and grams";
}

TEST(PlanFigure, tickedTaxaStandInTheirOrderAndAgesBetweenDatedDepths)
{
    FigureSettings settings = referenceSettings();
    settings.taxa = {{"Poaceae", "Betula", "nobody", "Poaceae", "Tilia"}};
    settings.ages = {{600, 5000}, {400, 1000}};
    const FigurePlan plan = dallican(settings);
    ASSERT_EQ(plan.layout.columns.size(), 3);
    EXPECT_EQ(plan.data.taxa[plan.layout.columns[1].shown.taxon].name, "Betula");
    EXPECT_EQ(plan.layout.plotLeft, 3 + 14 + 14);
    const PageGroup& ages = *groupOf(plan.page, "age-axis");
    std::vector<double> places;
    for (std::size_t i = ages.first; i < ages.end; ++i)
        if (plan.page.marks[i].kind == PageMark::Kind::text &&
            plan.page.texts[plan.page.marks[i].text].angle == 0)
            places.push_back(plan.page.points[plan.page.marks[i].firstPoint].y);
    ASSERT_EQ(places.size(), 9) << "1000, 1500, ... 5000";
    EXPECT_NEAR((places.front() + places.back()) / 2, plan.layout.yOf(500) + 0.9, 0.02);

    settings.ages = {{400, 1000}, {500, 900}, {600, 5000}};
    EXPECT_EQ(dallican(settings).faults.size(), 1);
}

TEST(PlanFigure, theUnweightedVariantIsTheDiagramsOwn)
{
    FigureSettings settings = referenceSettings();
    settings.method = ClusterMethod::unweighted;
    settings.zonesBy = ZonesBy::hand;
    settings.cuts = {500};
    const FigurePlan plan = dallican(settings);
    EXPECT_EQ(plan.clusters.merges.size(), 62);
    EXPECT_TRUE(plan.clusters.sticks.empty());
    EXPECT_EQ(plan.clusters.merges.back().lowerLast, 62);
    EXPECT_EQ(plan.zones.size(), 2);
    EXPECT_NE(svgText(plan.page).find("unweighted variant of CONISS"), std::string::npos);
}

} // namespace
