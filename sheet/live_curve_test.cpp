#include "sheet/live_curve.h"

#include "core/program_test.h"
#include "core/text_changes.h"
#include "sheet/percent_view.h"
#include "sheet/sample_choice.h"

#include <cmath>

namespace {

class LiveCurve : public ProgramTest {
protected:
    LiveCurve()
    {
        hooks.DrawDiversity = DrawDiversity;
        addSamples(2);
        sheet.CurrentSample = 2;
    }
    static std::vector<Mark> redLines()
    {
        std::vector<Mark> found;
        for (const Mark& mark : frmMain.Picture2.picture.marks)
            if (mark.kind == Mark::Kind::line && mark.pen == RGB(255, 0, 0))
                found.push_back(mark);
        return found;
    }
};

/// Height of the line at each column of pixels, drawn point by point: lowest and highest.
std::vector<std::pair<float, float>> silhouette(const Drawing& drawing, int total, int columns)
{
    std::vector<std::pair<float, float>> heights(columns + 1, {1e9F, -1e9F});
    for (const Mark& line : drawing.marks)
        for (const auto& [x, y] : {std::pair(line.x1, line.y1), std::pair(line.x2, line.y2)}) {
            auto& [low, high] =
                heights[static_cast<std::size_t>(std::int64_t{std::lround(x / 10)} * columns / total)];
            low = std::min(low, y);
            high = std::max(high, y);
        }
    return heights;
}

} // namespace

TEST_F(LiveCurve, growsWithTheCountOnItsAxes)
{
    tap('Q');
    tap('W');
    tap('W');
    EXPECT_EQ(sheet.DiversityCurve, (std::vector<std::int16_t>{0, 10, 20, 20}));
    const auto lines = redLines();
    ASSERT_EQ(lines.size(), 3);
    EXPECT_TRUE(lines[0].x1 == 0 && lines[0].y1 == 0 && lines[0].x2 == 10 && lines[0].y2 == 10);
    EXPECT_TRUE(lines[2].x1 == 20 && lines[2].y1 == 20 && lines[2].x2 == 30 && lines[2].y2 == 20);

    const Scale& scale = frmMain.Picture2.scale;
    EXPECT_FLOAT_EQ(scale.top, 2 * 11.53F);
    EXPECT_FLOAT_EQ(scale.height, -2 * 13.4F);
    EXPECT_FLOAT_EQ(scale.left, -3 * 1.32F);
    EXPECT_FLOAT_EQ(scale.width, 3 * 12.4F);
    std::vector<std::string> texts;
    for (const Letters& letters : frmMain.Picture2.picture.texts)
        texts.push_back(letters.text);
    EXPECT_EQ(texts, (std::vector<std::string>{"0", "3", "0", "2"}));
    const Mark& taxa = frmMain.Picture2.picture.marks.back();
    EXPECT_FLOAT_EQ(taxa.x1, -0.8F * 3);
    EXPECT_FLOAT_EQ(taxa.y1, 10.6F * 2);

    for (int i = 0; i < 3; ++i)
        tap(undoKey);
    EXPECT_TRUE(frmMain.Picture2.picture.marks.empty());
    mnuDiversityRB_Open();
    EXPECT_FALSE(frmMain.mnuCopyDiversity.enabled || frmMain.mnuSaveDiversity.enabled);
}

TEST_F(LiveCurve, beginsAgainWithAnotherSample)
{
    sheet.Count(1, 1) = 2; // the other sample has the same total
    tap('Q', 2);
    Combo2_Click("10");
    EXPECT_TRUE(redLines().empty());
    expectStaleQuestion(Answer::yes);
    tap('Q');
    tap('W');
    tap('W');
    EXPECT_EQ(sheet.DiversityCurve, (std::vector<std::int16_t>{0, 0, 0, 10, 20, 20}));
    EXPECT_EQ(redLines().size(), 2) << "only new keys draw";
    mnuCopyDiversity_Click();
    ASSERT_EQ(pictures.copied.size(), 1);
    EXPECT_EQ(pictures.copied[0].panels[0].drawing.marks, frmMain.Picture2.picture.marks);
}

TEST_F(LiveCurve, endsWhereItsLengthEndsAndIsEmptyInASampleWithoutCounts)
{
    frmMain.Text2[1].text = "32764";
    tap('Q', 4);
    EXPECT_EQ(sheet.DiversityTotal, 32767);
    ASSERT_EQ(sheet.DiversityCurve.size(), 32768);
    EXPECT_EQ(sheet.DiversityCurve[32766], 10);
    EXPECT_EQ(sheet.DiversityCurve[32767], 10) << "the last total that has a point";

    Combo2_Click("10");
    EXPECT_TRUE(frmMain.Picture2.picture.marks.empty());
    EXPECT_EQ(sheet.DiversityCurve, std::vector<std::int16_t>{0});
    expectStaleQuestion(Answer::yes);
    tap('Q');
    EXPECT_EQ(sheet.DiversityCurve, (std::vector<std::int16_t>{0, 10}));
    EXPECT_EQ(redLines().size(), 1);
}

TEST(LongCurve, isDrawnWithNoMoreLinesThanPixelsAndLooksTheSame)
{
    constexpr int total = 32767;
    constexpr int columns = 177;
    std::vector<std::int16_t> curve(total + 1);
    for (int n = 1; n <= total; ++n) // rises, with the notches of reverse counts
        curve[n] =
            static_cast<std::int16_t>(10 * static_cast<int>(std::sqrt(n / 3) + 1) - (n % 50 == 0 ? 10 : 0));
    curve[20000] = 0;
    const Drawing whole = planCurve(curve, total);
    const Drawing reduced = planCurve(curve, columns);
    EXPECT_EQ(whole.marks.size(), total - 2);
    EXPECT_LE(reduced.marks.size(), 2 * columns + 3);
    const auto extent = [](const Drawing& drawing) {
        float sum = 0;
        for (const Mark& line : drawing.marks)
            sum += line.x2 - line.x1;
        return sum;
    };
    EXPECT_NEAR(extent(reduced), extent(whole), 30.0 * total / columns) << "no gaps but the curve's own";
    const auto expected = silhouette(whole, total, columns);
    const auto drawn = silhouette(reduced, total, columns);
    for (int column = 0; column <= columns; ++column)
        EXPECT_EQ(expected[column], drawn[column]) << column;
}

TEST_F(LiveCurve, choosingASampleShowsItAndArmsTheQuestion)
{
    sheet.Count(1, 5) = 7;
    sheet.AdditionalInfo(1, 2) = "core A";
    sheet.SampleStamp(1, 1) = "yesterday";
    tap('Q');
    Combo2_Click("10");
    EXPECT_EQ(sheet.CurrentSample, 1);
    EXPECT_TRUE(sheet.WarnNotLatest);
    EXPECT_EQ(frmMain.Text2[5].text, "7");
    EXPECT_EQ(frmMain.Text1[0].text, "10");
    EXPECT_EQ(frmMain.Text5[2].text, "core A");
    EXPECT_EQ(frmMain.Text5[1].text, "---");
    EXPECT_EQ(frmMain.Label14[0].caption, "yesterday");
    EXPECT_EQ(frmMain.Label4.caption, "1/2");
    EXPECT_EQ(sheet.ActionText.back(), "(Change sample: 10)");
    expectStaleQuestion(Answer::no);
    tap('Q');
    EXPECT_EQ(sheet.Count(1, 1), 0);

    Command9_Click();
    EXPECT_EQ(sheet.CurrentSample, 2);
    EXPECT_EQ(frmMain.Combo2.text, "20");
    tap('Q'); // no question in the latest sample
    EXPECT_EQ(sheet.Count(2, 1), 2);
    Combo2_Click("no such name");
    EXPECT_EQ(sheet.CurrentSample, 2);
}

TEST_F(LiveCurve, choosingWhilePercentagesShowPutsTheRightNumbersBack)
{
    sheet.Count(1, 1) = 7;
    tap('Q');
    Command6_MouseDown();
    Combo2_Click("10");
    Command6_MouseUp();
    EXPECT_TRUE(shown(1) == 7 && sheet.Count(1, 1) == 7 && sheet.Count(2, 1) == 1);
}

TEST_F(LiveCurve, typingInTheListGoesBackButForTheFirstChangeAfterAPick)
{
    sheet.Modifying = true;
    Combo2_Change("2", 1);
    EXPECT_EQ(frmMain.Combo2.text, "20");
    Combo2_Click("10");
    EXPECT_EQ(frmMain.focus, MainFocus::Text4);
    Combo2_Change("10.5", 4);
    EXPECT_EQ(sheet.SampleField(1, 2), "10.5");
    EXPECT_EQ(frmMain.Text1[0].text, "10.5");
    EXPECT_EQ(frmMain.Combo2.items, (std::vector<std::string>{"10.5", "20"}));
    Combo2_Change("10.55", 5);
    EXPECT_EQ(frmMain.Combo2.text, "10.5");
    Command9_Click(); // its own writing of the name uses the change up
    Combo2_Change("2", 1);
    EXPECT_EQ(sheet.SampleField(2, 2), "20");
}
