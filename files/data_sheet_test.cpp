#include "files/data_sheet_reader.h"
#include "files/note_migration.h"
#include "files/sheet_text.h"
#include "platform/code_page.h"

#include <fstream>
#include <gtest/gtest.h>
#include <iterator>

namespace {

enum class End { complete, early, repeated };

End readInto(SheetTables& tables, const std::string& text)
{
    DataSheetReader reader(text, tables);
    if (!reader.readPath() || !reader.readSerials() || !reader.readNames())
        return End::early;
    for (int row = 1; row <= taxonSlots; ++row)
        if (!reader.readTaxon(row))
            return End::early;
    if (reader.repeatedKeyIndex())
        return End::repeated;
    if (tables.SampleCount == 0)
        reader.beginFromTemplate("-9999");
    return reader.readTexts() ? End::complete : End::early;
}

std::string written(SheetTables& tables)
{
    std::array<std::string, infoItems + 1> captions;
    for (int item = 1; item <= infoItems; ++item)
        captions[item] = tables.AdditionalHeader[item][4];
    fillEmptyCells(tables, captions);
    return dataSheetText(tables, *sampleTotals(tables));
}

std::string rewritten(const std::string& text)
{
    SheetTables tables;
    EXPECT_EQ(readInto(tables, text), End::complete);
    return written(tables);
}

std::string replaced(std::string text, const std::string& old, const std::string& now)
{
    for (std::size_t at = text.find(old); at != std::string::npos; at = text.find(old, at + now.size()))
        text.replace(at, old.size(), now);
    return text;
}

/// Two samples at 10 and 20 cm, three taxa, two named subtotals.
SheetTables lake()
{
    SheetTables tables;
    tables.SheetHeader[1] = {"", "C:\\Cores\\Lake1.csv",
                             "Last modified (dd/mm/yyyy):", "15/11/2026_(20:03:45)", "Serial No."};
    tables.SheetHeader[2] = {"", "Key index", "Trees", "Herbs", "Sample name"};
    tables.SampleCount = 2;
    tables.SampleField(2, 1) = "2";
    tables.SampleField(1, 2) = "10";
    tables.SampleField(2, 2) = "20";
    tables.TaxonRecord[1] = {"1", "1", "1", "0", "Pinus"};
    tables.TaxonRecord[2] = {"2", "2", "1", "0", "Betula"};
    tables.TaxonRecord[3] = {"3", "3", "0", "1", "Poaceae"};
    const int counts[2][3] = {{12, 3, 5}, {7, 0, 9}};
    for (int sample = 1; sample <= 2; ++sample)
        for (int slot = 1; slot <= 3; ++slot)
            tables.Count(sample, slot) = counts[sample - 1][slot - 1];
    tables.SampleNote(2, 0) = "Charcoal layer";
    const char* stamps[2][3] = {{"15/11/2026 (19:58:33)", "15/11/2026 (19:59:02)", "15/11/2026 (20:00:51)"},
                                {"15/11/2026 (20:01:10)", "15/11/2026 (20:01:40)", "15/11/2026 (20:03:45)"}};
    for (int sample = 1; sample <= 2; ++sample)
        for (int date = 1; date <= 3; ++date)
            tables.SampleStamp(sample, date) = stamps[sample - 1][date - 1];
    return tables;
}

std::string lakeText()
{
    const std::string front = R"("---","---","---",)";
    std::string text =
        R"x("C:\Cores\Lake1.csv","Last modified (dd/mm/yyyy):","15/11/2026_(20:03:45)","Serial No.","1","2"
"Key index","Trees","Herbs","Sample name","10","20"
1,1,0,"Pinus",12,7
2,1,0,"Betula",3,0
3,0,1,"Poaceae",5,9
)x";
    for (int row = 4; row <= 135; ++row)
        text += std::to_string(row) + ",0,0,\"---\",0,0\n";
    for (int item = 1; item <= 6; ++item)
        text += front + "\"Additional info-" + std::to_string(item) + "\",\"---\",\"---\"\n";
    for (const char* line : {R"x("Note: ","---","Charcoal layer")x",
                             R"x("Created:","15/11/2026 (19:58:33)","15/11/2026 (20:01:10)")x",
                             R"x("Count start:","15/11/2026 (19:59:02)","15/11/2026 (20:01:40)")x",
                             R"x("Last modified:","15/11/2026 (20:00:51)","15/11/2026 (20:03:45)")x",
                             R"x("Trees",15,7)x", R"x("Herbs",5,9)x", R"x("All total",20,16)x"})
        text += front + line + "\n";
    return replaced(text, "\n", "\r\n");
}

} // namespace

TEST(DataSheet, isWrittenByteForByteAndReadBack)
{
    SheetTables tables = lake();
    EXPECT_EQ(written(tables), lakeText());

    SheetTables back;
    ASSERT_EQ(readInto(back, lakeText()), End::complete);
    EXPECT_EQ(back.Count, tables.Count);
    EXPECT_EQ(back.LatestSerial, 2);
    EXPECT_EQ(back.TaxonRecord[3].Subtotal2, "1");
    EXPECT_EQ(back.SampleStamp(2, 2), "15/11/2026 (20:01:40)");
}

TEST(DataSheet, realSheetsAreRewrittenAsTheyStand)
{
    for (const char* name : {"cradle_lake_diatoms.csv", "dallican_pollen.csv", "khil_phytoliths.csv"}) {
        std::ifstream file(std::string(EXAMPLES) + "/" + name, std::ios::binary);
        const std::string text{std::istreambuf_iterator<char>(file), {}};
        ASSERT_FALSE(text.empty()) << name;
        EXPECT_EQ(rewritten(text), text) << name;
    }
}

TEST(DataSheet, readsTheSameAfterASpreadsheetHadIt)
{
    const std::string quoted = replaced(lakeText(), "\"Poaceae\"", "\"Gr\xE4ser\"");
    const std::string bare = replaced(replaced(quoted, "\"", ""), "\r\n", "\n");
    const std::string utf8 = "\xEF\xBB\xBF" + replaced(bare, "\xE4", "\xC3\xA4");
    for (const std::string& text : {bare, utf8})
        EXPECT_EQ(rewritten(fileTextInCodePage(text)), quoted);
    EXPECT_EQ(fileTextInCodePage(quoted), quoted) << "the code page's own bytes are no UTF-8";
    const std::string accident = replaced(quoted, "Betula", "Betula \xC3\xA9");
    EXPECT_EQ(fileTextInCodePage(accident), accident) << "only if all of the file is";

    const std::string inches = replaced(bare, "Pinus", "5\" core");
    EXPECT_EQ(rewritten(inches), replaced(quoted, "Pinus", "5' core"));
}

TEST(DataSheet, olderLayoutsKeepTheirNotesAndLeaveNothingOfTheSheetBefore)
{
    const std::string note = "Created: 15/11/2026 (19:58:33)\r\nNote:Ash layer\r\nLast saved:15/11/2026";
    std::string second = replaced(lakeText(), "Last modified (dd/mm/yyyy):", "Last saved (dd/mm/yyyy):");
    second = replaced(second, "Charcoal layer", note);
    std::string first = replaced(lakeText(), "Last modified (dd/mm/yyyy):", "Saved:");
    first = replaced(first, "Charcoal layer", note);
    for (int item = 1; item <= 6; ++item)
        first = replaced(first,
                         "\"---\",\"---\",\"---\",\"Additional info-" + std::to_string(item) +
                             "\",\"---\",\"---\"\r\n",
                         "");
    for (const auto& [text, generation] : {std::pair(first, 1), {second, 2}}) {
        SheetTables tables = lake();
        tables.AdditionalInfo(2, 3) = "old";
        ASSERT_EQ(readInto(tables, text), End::complete);
        EXPECT_EQ(tables.FileGeneration, generation);
        EXPECT_EQ(tables.SampleNote(2, 0), "Ash layer");
        EXPECT_EQ(tables.SampleStamp(2, 1), "15/11/2026 (19:58:33)");
        EXPECT_EQ(tables.SampleStamp(2, 2), "---");
        EXPECT_EQ(tables.AdditionalInfo(2, 3), "---");
    }
    // A backup counts as no layout at all: its additional info is taken for the notes.
    SheetTables tables;
    SheetTables backup = lake();
    fillEmptyCells(backup, {});
    backup.SheetHeader[1][2] = "Backed up (dd/mm/yyyy):";
    ASSERT_EQ(readInto(tables, backupText(backup)), End::complete);
    EXPECT_EQ(tables.FileGeneration, 0);
    EXPECT_EQ(tables.Count, backup.Count);
    EXPECT_EQ(tables.NoteHeader[4], "Additional info-1");
}

TEST(DataSheet, serialNumbersEndAtTheFirstTextThatIsNone)
{
    const auto serials = [](const std::string& line) {
        SheetTables tables;
        readInto(tables, "\"\",\"Last modified (dd/mm/yyyy):\",\"\"," + line);
        return std::pair(static_cast<int>(tables.SampleCount), static_cast<int>(tables.LatestSerial));
    };
    EXPECT_EQ(serials("Serial No.,3,2.5,-3,Key index,"), std::pair(3, 3));
    EXPECT_EQ(serials("extra,Serial No.,7,Key index,"), std::pair(1, 7)) << "one field more may stand there";
    for (const char* end : {"01", "1.0", "", "+1", "1e3"})
        EXPECT_EQ(serials(std::string("Serial No.,1,") + end + ",5,"), std::pair(1, 1)) << end;
    EXPECT_EQ(serials("Serial No.,Key index,"), std::pair(0, 0));
    std::string many = "Serial No.";
    for (int i = 1; i <= 256; ++i)
        many += "," + std::to_string(1000 + i);
    EXPECT_EQ(serials(many.substr(0, many.rfind(',')) + ",Key index,"), std::pair(255, 1255));
    EXPECT_EQ(serials(many + ",Key index,").first, 1) << "no room: the sheet keeps its size";
}

TEST(DataSheet, anEarlyEndOrANumberOutOfRangeFailsWhereverItStands)
{
    const std::string text = lakeText();
    const std::size_t read = text.find("\"---\",\"---\",\"---\",\"Trees\"");
    for (std::size_t length = 0; length < read - 2; length += 37) {
        SheetTables tables;
        EXPECT_EQ(readInto(tables, text.substr(0, length)), End::early) << length;
    }
    SheetTables tables;
    EXPECT_EQ(readInto(tables, text.substr(0, read)), End::complete) << "the sums at the foot are never read";
    for (const char* row : {"136,0", "-1,0", "99999999999,0"})
        EXPECT_EQ(readInto(tables, replaced(text, "\r\n1,1", std::string("\r\n") + row)), End::early) << row;
    EXPECT_EQ(readInto(tables, replaced(text, "\"Pinus\",12", "\"Pinus\",2147483648")), End::early);
    EXPECT_EQ(readInto(tables, replaced(text, "\r\n135,0", "\r\n7,0")), End::repeated);
    EXPECT_EQ(readInto(tables, replaced(text, "\"Pinus\",12", "\"Pinus\",many")), End::complete);
    EXPECT_EQ(tables.Count(1, 1), 0) << "a number that does not parse holds 0";
}

TEST(DataSheet, ofEqualKeyIndexesInABrokenFileTheFirstRowKeepsIts)
{
    SheetTables tables;
    const std::string broken = replaced(lakeText(), "\r\n3,0,1", "\r\n2,0,1");
    ASSERT_EQ(readInto(tables, broken.substr(0, broken.find("\r\n9,"))), End::early);
    EXPECT_EQ(completeKeyIndexes(tables), 3);
    EXPECT_EQ(tables.KeyIndexOfRow[2], 2);
    EXPECT_EQ(tables.KeyIndexOfRow[3], 3);
    for (int row = 1; row <= taxonSlots; ++row)
        EXPECT_EQ(tables.RowOfKeyIndex[tables.KeyIndexOfRow[row]], row);
    EXPECT_EQ(tables.TaxonRecord[3].Name, "---") << "its line was read into the other's row";
    EXPECT_EQ(tables.Count(1, 3), 0);
}

TEST(DataSheet, totalsBeyondWhatAFileHoldsAreRefused)
{
    SheetTables tables = lake();
    tables.Count(2, 100) = 32767 - 16;
    EXPECT_EQ(sampleTotals(tables)->at(2).all, 32767);
    ++tables.Count(2, 100);
    EXPECT_FALSE(sampleTotals(tables));
    tables.Count(2, 100) = -40000;
    EXPECT_FALSE(sampleTotals(tables));
}

TEST(NoteMigration, takesTheStampsOutOfOldNotes)
{
    const struct {
        const char *note, *cleaned, *created, *saved;
    } cases[] = {
        {"Created: 01/11/26 (19:58:33)\r\nNote:  Sand \r\n", "Sand", "01/11/26 (19:58:33)", ""},
        {"Created: 15. Nov. 26 (19:58:33)\r\nNote:", "---", "15. Nov. 26 (19:58:33)", ""},
        {"Note:Two\r\nlines of it\r\nLast saved: 15/11/2026 (20:00:51)", "Two\r\nlines of it", "",
         "15/11/2026 (20:00:51)"},
        {"Created: by hand", "Created: by hand", "", ""},
        {"Last saved: a long story that is no stamp at all",
         "Last saved: a long story that is no stamp at all", "", ""},
        {"Created: 15/11/2026 (19:58:33)\nNote:By way\nof a spreadsheet", "By way\r\nof a spreadsheet",
         "15/11/2026 (19:58:33)", ""},
        {"\r\n", "---", "", ""},
        {" ", "---", "", ""},
    };
    for (const auto& [note, cleaned, created, saved] : cases) {
        std::string text = note;
        std::string createdStamp;
        std::string savedStamp;
        NoteMigration().clean(text, createdStamp, savedStamp);
        EXPECT_EQ(text, cleaned) << note;
        EXPECT_EQ(createdStamp, created) << note;
        EXPECT_EQ(savedStamp, saved) << note;
    }

    NoteMigration file;
    std::string notes[] = {"A\r\nLast saved: first", "B\r\nLast saved: second"};
    std::string saved[2];
    std::string created;
    for (int i = 0; i < 2; ++i)
        file.clean(notes[i], created, saved[i]);
    EXPECT_EQ(saved[0], "first");
    EXPECT_EQ(saved[1], "") << "only the first stamp of a file is kept";
    EXPECT_EQ(notes[1], "B");
}
