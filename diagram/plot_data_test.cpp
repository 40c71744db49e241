#include "diagram/plot_data.h"

#include "core/number_text.h"
#include "diagram/paint_diagram.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <initializer_list>

namespace {

/// A sheet of samples by name, with their places on the depth axis.
SheetTables sheetOf(std::initializer_list<const char*> names)
{
    SheetTables made;
    made.SampleCount = 0;
    for (const char* name : names) {
        ++made.SampleCount;
        made.SampleField(made.SampleCount, 0) = made.SampleField(made.SampleCount, 2) = name;
    }
    return made;
}

std::array<std::int32_t, taxonSlots + 1> everyTaxon()
{
    std::array<std::int32_t, taxonSlots + 1> weights;
    weights.fill(1);
    return weights;
}

std::vector<Mark> marksOf(const Drawing& drawing, Colour pen)
{
    std::vector<Mark> found;
    std::copy_if(drawing.marks.begin(), drawing.marks.end(), std::back_inserter(found),
                 [pen](const Mark& mark) { return mark.kind != Mark::Kind::box && mark.pen == pen; });
    return found;
}

constexpr Colour green = RGB(0, 128, 0);

/// Four samples; taxon 1 has 50, 0, 100 and 25 percent, the second sample is empty.
struct SmallDiagram {
    SheetTables sheet = sheetOf({"0", "10", "20", "40"});
    PlotData plot;
    DiagramView view;

    SmallDiagram()
    {
        const int counts[] = {0, 2, 0, 4, 1};
        for (int sample = 1; sample <= 4; ++sample) {
            sheet.Count(sample, 1) = counts[sample];
            sheet.Count(sample, 2) = counts[sample] == 0 ? 0 : 4 - counts[sample];
        }
        sheet.Count(1, 2) = 2;
        plot.ColumnGap = columnGap(5);
        rankSamples(plot, sheet, true);
        fillShares(plot, sheet, everyTaxon());
        layOutColumns(plot, sheet);
        view.colour = green;
        view.scale = rowScale(4, 500);
    }
    Drawing paint(void (*style)(ColumnPainter&))
    {
        view.paintColumn = style;
        return planDiagram(plot, rowPositions(sheet, false), view);
    }
};

} // namespace

TEST(PlotData, ranksByDepthAndKeepsWhatItCannotRank)
{
    PlotData plot;
    rankSamples(plot, sheetOf({"30", "10", "20", "10"}), true);
    EXPECT_EQ(plot.DepthRank, (std::vector<int>{0, 4, 1, 3, 2}));
    EXPECT_EQ(plot.RankSample, (std::vector<int>{0, 2, 4, 3, 1}));
    rankSamples(plot, sheetOf({"30", "b", "20"}), false);
    EXPECT_EQ(plot.DepthRank, (std::vector<int>{0, 1, 2, 3}));
    rankSamples(plot, sheetOf({"999999", "5", "7"}), true); // the last pick stands again
    EXPECT_EQ(plot.RankSample, (std::vector<int>{0, 2, 3, 3}));
    EXPECT_EQ(columnGap(10), 5);
    EXPECT_EQ(columnGap(3), 17);
    EXPECT_EQ(columnGap(4), 12) << "12.5: a half goes to the even side";
}

TEST(PlotData, sharesAreByFileRowAndRankAndColumnsAsWideAsTheirLargest)
{
    SheetTables sheet = sheetOf({"20", "10"});
    std::swap(sheet.RowOfKeyIndex[1], sheet.RowOfKeyIndex[3]); // key 1 counts file row 3
    sheet.TaxonRecord[1].Name = "Alnus";
    sheet.Count(1, 1) = 6;
    sheet.Count(1, 2) = 4;
    sheet.Count(2, 2) = -1;
    sheet.Count(2, 5) = 3;
    auto weights = everyTaxon();
    weights[1] = 0; // outside the basis
    PlotData plot;
    rankSamples(plot, sheet, true);
    fillShares(plot, sheet, weights);
    layOutColumns(plot, sheet);
    EXPECT_EQ(plot.Share(2, 3), 1.5F) << "against a total that does not hold it";
    EXPECT_EQ(plot.Share(1, 2), -0.5F);
    EXPECT_EQ(plot.Share(1, 0), 1);
    EXPECT_EQ(plot.ColumnName[3], "Alnus");
    EXPECT_EQ(plot.ColumnLeft[1], 5);
    EXPECT_EQ(plot.ColumnLeft[2], 15) << "an empty column takes only its gap";
    EXPECT_EQ(plot.ColumnLeft[3], 125);
    EXPECT_EQ(plot.ColumnLeft[4], 285);
    EXPECT_EQ(plot.LastColumnWidth, 0);

    weights = {};
    fillShares(plot, sheet, weights);
    EXPECT_TRUE(plot.Share(1, 2) == 0 && plot.Share(1, 0) == 0) << "a sample without a basis";
}

TEST(PlotData, rowsLieByDepthInTheOrderOfTheSheet)
{
    EXPECT_EQ(rowPositions(sheetOf({"0", "1", "4"}), false), (std::vector<float>{0, 10, 15, 30}));
    EXPECT_EQ(rowPositions(sheetOf({"4", "1", "0"}), false), (std::vector<float>{0, 10, 25, 30}));
    EXPECT_EQ(rowPositions(sheetOf({"0", "1", "4"}), true), (std::vector<float>{0, 10, 20, 30}));
    EXPECT_EQ(rowPositions(sheetOf({"7", "1", "7"}), false), (std::vector<float>{0, 10, 20, 30}));
}

TEST(Painting, scaleHasItsMarginsAndItsSmallCases)
{
    EXPECT_EQ(rowScale(9, 500), (Scale{0, 8, 500, 84}));
    EXPECT_EQ(rowScale(2, 500), (Scale{0, 9.75F, 500, 10.5F}));
    EXPECT_EQ(rowScale(3, 500), (Scale{0, 9.5F, 500, 21}));
}

TEST(Painting, stylesDrawTheirLinesAndAnEmptySampleBreaksTheCurve)
{
    SmallDiagram diagram;
    diagram.view.scale.width = 6; // the first column alone
    // Rows lie at 10, 17.5, 25 and 40; the shares end at 55, 5, 105 and 30.
    const auto bars = marksOf(diagram.paint(paintBars), green);
    ASSERT_EQ(bars.size(), 4);
    EXPECT_TRUE(bars[2].x1 == 5 && bars[2].x2 == 105 && bars[2].y1 == 25 && bars[2].y2 == 25);

    const auto curve = marksOf(diagram.paint(paintCurve), green);
    ASSERT_EQ(curve.size(), 5);
    EXPECT_TRUE(curve[0].y1 == 10 && curve[1].y1 == 25) << "closed on both sides of the empty sample";
    EXPECT_TRUE(curve[2].y1 == 10 && curve[3].y1 == 40) << "and at its ends";
    EXPECT_TRUE(curve[4].x1 == 30 && curve[4].y1 == 40 && curve[4].x2 == 105 && curve[4].y2 == 25);

    EXPECT_EQ(marksOf(diagram.paint(paintBarsAndCurve), green).size(), 5);
    const auto dots = marksOf(diagram.paint(paintDotsAndCurve), green);
    ASSERT_EQ(dots.size(), 4);
    EXPECT_TRUE(dots[1].kind == Mark::Kind::circle && dots[1].x1 == 55 && dots[1].x2 == 1.5F);
    diagram.plot.Share(1, 1) = 0.005F; // as a 32-bit number just below
    diagram.plot.Share(3, 1) = 0.0051F;
    EXPECT_EQ(marksOf(diagram.paint(paintDots), green).size(), 2);
}

TEST(Painting, axesAndTicksStandInEachColumnInView)
{
    SmallDiagram diagram; // column 1: 5 to 115 with its gap, column 2: 115 to 190
    diagram.view.scale.width = 6;
    const auto black = marksOf(diagram.paint(paintBars), RGB(0, 0, 0));
    ASSERT_EQ(black.size(), 1 + 2 * 11);
    EXPECT_TRUE(black[0].x1 == 5 && black[0].y1 == 10 && black[0].y2 == 40);
    EXPECT_FLOAT_EQ(black[1].y2, diagram.view.scale.top + diagram.view.scale.height * 0.008F);
    EXPECT_FLOAT_EQ(black[21].x1, 105);

    diagram.view.scroll = 120; // the first column has left the view
    diagram.view.scale.width = 60;
    const auto second = marksOf(diagram.paint(paintBars), RGB(0, 0, 0));
    ASSERT_FALSE(second.empty());
    EXPECT_EQ(second[0].x1, -5);
    diagram.view.zoom = 0.2F; // five times as much fits in
    EXPECT_EQ(marksOf(diagram.paint(paintBars), green).size() % 4, 0);
    EXPECT_EQ(marksOf(diagram.paint(paintBars), green)[0].x1, -1);

    EXPECT_TRUE(planDiagram(diagram.plot, {0, 10}, diagram.view).marks.empty());
}

TEST(Painting, namesStandAtTheirColumnsAndFamiliesUpright)
{
    SmallDiagram diagram;
    diagram.plot.ColumnName.fill("Betula");
    diagram.plot.ColumnName[3] = "---";
    diagram.view.zoom = 2;
    diagram.view.scroll = 5;
    Drawing names = planNames(diagram.plot, diagram.view, 120);
    ASSERT_GE(names.texts.size(), 3);
    EXPECT_FALSE(names.texts[0].italic) << "no families: a list of codes perhaps";
    EXPECT_TRUE(names.texts[0].upwards);
    EXPECT_TRUE(names.marks[0].x1 == 0 && names.marks[0].y1 == 120);
    EXPECT_EQ(names.marks[1].x1, 217) << "110 units at 1.98 pixels";
    EXPECT_LT(names.texts.size(), 100) << "what lies beyond the view is left out";

    diagram.plot.ColumnName[135] = "POACEAE"; // out of view, and still a family
    names = planNames(diagram.plot, diagram.view, 120);
    EXPECT_TRUE(names.texts[0].italic);
    EXPECT_FALSE(names.texts[2].italic);
    EXPECT_EQ(names.texts[2].text, "---");
}
