#include "core/cue.h"
#include "core/number_text.h"
#include "core/program_test.h"
#include "printing/printing.h"
#include "printing/sheet_pages.h"
#include "tables/sheets_test.h"

#include <algorithm>
#include <set>

namespace {

double letterWidth(std::string_view text, bool)
{
    return 0.5 * static_cast<double>(text.size());
}

struct Placed {
    std::string text;
    double left;
    double right;
    double y;
};

std::vector<Placed> textsOf(const Page& page)
{
    std::vector<Placed> texts;
    for (const PageMark& mark : page.marks) {
        if (mark.kind != PageMark::Kind::text)
            continue;
        const PageText& letters = page.texts[static_cast<std::size_t>(mark.text)];
        const PagePoint place = page.points[mark.firstPoint];
        const std::string& text = letters.runs.front().text;
        const double left = place.x - (letters.anchor == Anchor::end ? letters.width : 0);
        texts.push_back({text, left, left + letters.width, place.y});
        EXPECT_NEAR(letters.width, letterWidth(text, false) * letters.points * millimetresPerPoint, 1e-9);
    }
    return texts;
}

/// Nothing outside the margins, and no text over another one of its line.
void expectNeat(const Page& page)
{
    std::vector<Placed> texts = textsOf(page);
    std::sort(texts.begin(), texts.end(), [](const Placed& one, const Placed& other) {
        return std::pair(one.y, one.left) < std::pair(other.y, other.left);
    });
    for (std::size_t i = 0; i < texts.size(); ++i) {
        EXPECT_GE(texts[i].left, 14.99) << texts[i].text;
        EXPECT_LE(texts[i].right, page.width - 14.99) << texts[i].text;
        EXPECT_LE(texts[i].y, page.height - 14.99) << texts[i].text;
        if (i > 0 && texts[i].y == texts[i - 1].y) {
            EXPECT_LE(texts[i - 1].right, texts[i].left + 0.01)
                << texts[i - 1].text << " | " << texts[i].text;
        }
    }
}

SheetWords someWords()
{
    SheetWords words;
    words.title = "Lake";
    words.totals = {"All total:", "Trees:", "Herbs:"};
    words.infoNames = {"", "Analyst", "Volume", "c", "d", "e", "f"};
    return words;
}

class Printing : public ProgramTest {};

} // namespace

TEST(SheetPages, eachCountStandsOnAPageOnce)
{
    const SheetTables state = exampleSheet("dallican_pollen");
    const std::vector<Page> pages = sheetPages(state, someWords(), letterWidth);
    std::multiset<std::string> printed;
    for (const Page& page : pages) {
        expectNeat(page);
        for (const Placed& text : textsOf(page))
            printed.insert(text.text);
    }
    for (const char* const once : {"Page 1 of ", "Page 2 of "})
        EXPECT_EQ(printed.count(once + std::to_string(pages.size())), 1U);
    std::multiset<std::string> counts;
    int samples = 0;
    for (int sample = 1; sample <= state.SampleCount; ++sample)
        samples += printed.count(state.SampleField(sample, 2)) > 0 ? 1 : 0;
    EXPECT_EQ(samples, state.SampleCount);
    for (int slot = 1; slot <= taxonSlots; ++slot)
        if (state.TaxonRecord[slot].Name != "---") {
            EXPECT_GT(printed.count(state.TaxonRecord[slot].Name), 0U) << state.TaxonRecord[slot].Name;
            for (int sample = 1; sample <= state.SampleCount; ++sample)
                counts.insert(std::to_string(state.Count(sample, slot)));
        }
    for (const std::string& count : std::set<std::string>(counts.begin(), counts.end()))
        EXPECT_GE(printed.count(count), counts.count(count)) << count;
}

TEST(SheetPages, theFullestSheetAndLongTextsStayOnThePage)
{
    SheetTables state;
    state.SampleCount = 250;
    for (int sample = 1; sample <= 250; ++sample) {
        state.SampleField(sample, 2) = sample % 7 == 0 ? std::string(60, 'w') : std::to_string(sample) + ".5";
        for (int slot = 1; slot <= taxonSlots; ++slot)
            state.Count(sample, slot) = sample % 5 == 0 ? 2000000000 : -slot;
    }
    for (int slot = 1; slot <= taxonSlots; ++slot)
        state.TaxonRecord[slot].Name = std::string(static_cast<std::size_t>(slot), 'n');
    state.SampleNote(3, 0) = std::string("\xFC") + "ber " + std::string(400, 'x').replace(9, 1, " ");
    for (int word = 0; word < 200; ++word)
        state.AdditionalInfo(7, 2) += "word ";
    SheetWords words = someWords();
    words.title = std::string(300, 't');
    words.infoNames[2] = std::string(100, 'i');
    for (const Page& page : sheetPages(state, words, letterWidth))
        expectNeat(page);

    EXPECT_EQ(sheetPages(SheetTables(), someWords(), letterWidth).size(), 1U) << "an empty sheet";
}

TEST_F(Printing, writesPdfBesideTheSheetAndNothingElse)
{
    static_cast<SheetTables&>(sheet) = exampleSheet("dallican_pollen");
    sheet.SheetPath = "/home/Lake.csv";
    files.contents["/home/Lake.csv"] = "the sheet";
    frmMain.Command5[0].enabled = true;
    for (int slot = 1; slot <= taxonSlots; ++slot)
        frmMain.Text2[slot].text = decimalText(sheet.Count(sheet.CurrentSample, slot));

    dialogs.paths = {"/home/Lake_sheet.pdf", "/home/Lake_summary.PDF", std::nullopt};
    mnuPrintSheet_Click();
    EXPECT_EQ(dialogs.proposed, "/home/Lake_sheet.pdf");
    EXPECT_EQ(files.contents["/home/Lake_sheet.pdf"],
              std::to_string(pictures.encodedPages.size()) + " pages");
    EXPECT_EQ(frmMain.notice, "'Lake_sheet.pdf' written, to be printed from there.");
    mnuPrintSummary_Click();
    EXPECT_EQ(dialogs.proposed, "/home/Lake_summary.pdf");
    EXPECT_EQ(files.contents["/home/Lake_summary.PDF"], "1 pages");
    expectNeat(pictures.encodedPages.front());
    mnuPrintSheet_Click(); // cancelled

    dialogs.paths = {"/home/Lake.csv"};
    dialogs.expect("Pages are written as PDF. Choose a name that ends in '.pdf'.", "Error");
    mnuPrintSheet_Click();
    EXPECT_EQ(files.contents["/home/Lake.csv"], "the sheet");
    EXPECT_TRUE(frmMain.Command5[0].enabled) << "still to be saved";
    EXPECT_EQ(sheet.SheetPath, "/home/Lake.csv");
}
