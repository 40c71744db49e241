#include "tables/count_table.h"

#include "core/number_text.h"
#include "platform/code_page.h"
#include "tables/export_tables.h"
#include "tables/sheets_test.h"
#include "tables/table_encoding.h"

namespace {

CountTable read(const std::string& text, TableReading reading = {})
{
    return readCountTable(text, reading);
}

/// What a table holds in a line: samples before taxa, then the counts.
std::string told(const CountTable& table)
{
    std::string text = table.refusal;
    for (const std::string& sample : table.samples)
        text += sample + " ";
    text += "/";
    for (const std::string& taxon : table.taxa)
        text += " " + taxon;
    text += " :";
    for (const auto count : table.counts)
        text += " " + decimalText(count);
    return text;
}

std::string remarks(const CountTable& table)
{
    std::string text;
    for (const std::string& remark : table.remarks)
        text += remark + "\n";
    return text;
}

using Cells = std::vector<std::vector<std::string>>;

Cells cellsOf(const std::string& text) // of a table without quotation marks
{
    Cells cells(1, std::vector<std::string>(1));
    for (const char c : text)
        if (c == ',')
            cells.back().emplace_back();
        else if (c == '\n')
            cells.emplace_back(1);
        else
            cells.back().back() += c;
    cells.pop_back();
    return cells;
}

Cells transposed(const Cells& cells)
{
    Cells turned(cells[0].size(), std::vector<std::string>(cells.size()));
    for (std::size_t row = 0; row < cells.size(); ++row)
        for (std::size_t column = 0; column < cells[0].size(); ++column)
            turned[column][row] = cells[row][column];
    return turned;
}

std::string joined(const Cells& cells, char separator)
{
    std::string text;
    for (const auto& row : cells) {
        for (const std::string& cell : row)
            text += (cell.find(separator) == std::string::npos ? cell : '"' + cell + '"') + separator;
        text.back() = '\n';
    }
    return text;
}

std::string utf16(const std::string& codePageText)
{
    std::string bytes = "\xFF\xFE";
    for (const char16_t unit : fromCodePage(codePageText)) {
        bytes += static_cast<char>(unit & 0xFF);
        bytes += static_cast<char>(unit >> 8);
    }
    return bytes;
}

SheetTables withoutGroups(SheetTables sheet)
{
    for (TaxonFields& taxon : sheet.TaxonRecord)
        taxon.Subtotal1 = taxon.Subtotal2 = "0";
    return sheet;
}

void expectSheet(const std::string& bytes, const SheetTables& sheet, TableReading reading = {})
{
    const DecodedTable decoded = decodeTable(bytes);
    EXPECT_EQ(decoded.replaced, 0);
    const CountTable table = read(decoded.text, reading);
    ASSERT_EQ(table.refusal, "");
    SheetTables taken;
    taken.SampleCount = static_cast<int>(table.samples.size());
    for (std::size_t taxon = 0; taxon < table.taxa.size(); ++taxon)
        taken.TaxonRecord[taxon + 1].Name = table.taxa[taxon];
    for (std::size_t sample = 0; sample < table.samples.size(); ++sample) {
        taken.SampleField(static_cast<int>(sample) + 1, 2) = table.samples[sample];
        for (std::size_t taxon = 0; taxon < table.taxa.size(); ++taxon)
            taken.Count(static_cast<int>(sample) + 1, static_cast<int>(taxon) + 1) =
                table.count(sample, taxon);
    }
    const SheetTables expected = withoutGroups(sheet);
    EXPECT_EQ(taxaTable(taken), taxaTable(expected));
    EXPECT_EQ(tidyTable(taken, ""), tidyTable(expected, ""));
}

} // namespace

TEST(CountTable, thePublishedTablesGiveTheCountsOfTheirSheetsEitherWay)
{
    for (const std::string name : {"dallican_pollen", "cradle_lake_diatoms", "khil_phytoliths"}) {
        SCOPED_TRACE(name);
        const SheetTables sheet = exampleSheet(name);
        Cells cells = cellsOf(reference(name + ".csv"));
        expectSheet(reference(name + ".csv"), sheet);
        for (const char separator : {',', ';', '\t'}) {
            expectSheet(joined(cells, separator), sheet);
            expectSheet(utf16(joined(cells, separator)), sheet);
        }
        cells[0][0] = "sample";
        expectSheet(joined(transposed(cells), ';'), sheet);
        cells[0][0] = ""; // as R writes it: only numbers can tell the side
        const std::string turned = joined(transposed(cells), ',');
        EXPECT_EQ(read(turned).samplesStand.has_value(), name != "khil_phytoliths");
        expectSheet(turned, sheet, {Samples::rows, false});
        expectSheet(joined(cells, ','), sheet, {Samples::columns, false});
    }
    // What the program writes itself.
    const CountTable table = read(reference("dallican_pollen_counts.csv"));
    EXPECT_EQ(table.samples.size(), 63U);
    EXPECT_EQ(table.taxa.size(), 47U);
    EXPECT_EQ(remarks(table), "Left out: column 2 \"depth\", which holds no counts of a taxon.\n");
}

TEST(CountTable, theSamplesStandWhereHeadsOrNumbersSay)
{
    EXPECT_EQ(read("Depth (cm),A,B\n10,1,2\n20,3,4\n").samplesStand, Samples::rows);
    EXPECT_EQ(read("Species,10,20\nA,1,2\n").samplesStand, Samples::columns);
    EXPECT_EQ(read(",A,B\n10,1,2\n20,3,4\n").samplesStand, Samples::rows);
    EXPECT_EQ(read(";12,5;13,5\nA;1;2\nB;1;2\n").samplesStand, Samples::columns);
    EXPECT_FALSE(read("x,A,B\nc,1,2\n").samplesStand);
    // R writes row names without a head above them.
    EXPECT_EQ(told(read("A\tB\n10\t1\t2\n20\t3\t4\n")), "10 20 / A B : 1 2 3 4");
}

TEST(CountTable, whatHoldsNoCountsIsLeftOutAndSaid)
{
    const CountTable told1 = read("id,depth,age,Pinus,N,Betula,Alnus,Total\n"
                                  "a,10,800.5,1,6,2,3,6\nb,20,900,4,15,5,6,15\nSum,,,5,21,7,9,21\n");
    EXPECT_EQ(told(told1), "10 20 / Pinus Betula Alnus : 1 2 3 4 5 6");
    EXPECT_EQ(remarks(told1), "Left out: column 1 \"id\", which holds no counts of a taxon.\n"
                              "Left out: column 3 \"age\", which holds no counts of a taxon.\n"
                              "Left out: column 8 \"Total\", which holds no counts of a taxon.\n"
                              "Left out: row 4 \"Sum\", which holds no counts of a sample.\n"
                              "Left out: column 5 \"N\", which equals the sum of the others.\n");
    // Two equal taxa are no sums of each other, and one equal number may be chance.
    EXPECT_EQ(read("sample,A,B,C\n1,2,2,0\n2,3,3,0\n").taxa.size(), 3U);
    EXPECT_EQ(read("sample,A,B,C\n1,5,2,3\n").taxa.size(), 3U);
    EXPECT_EQ(read("sample,A,B\nSample 1,5,2\nSample 2,1,2\n").samples.size(), 2U);
    EXPECT_EQ(remarks(read("sample,A,A\n1,5,2\n1,0,1\n")),
              "2 taxa are called \"A\".\n2 samples are called \"1\".\n");
}

TEST(CountTable, aCellThatIsNoCountRefusesAll)
{
    const auto refusal = [](const std::string& cell) {
        return read("\ntaxon;10;20\nA;1;2\n\nB, C;3;" + cell + "\n").refusal;
    };
    for (const char* cell :
         {"12.5", "-3", "x", "1e3", "+5", "99999999999", "n/a", "3 4", "12,5", "1.000", "1,000", "5."})
        EXPECT_EQ(refusal(cell),
                  std::string("Row 5, column 3 (cell C5, taxon \"B, C\", sample \"20\") holds \"") + cell +
                      "\", which is no count. Nothing can be taken.");
    for (const char* cell : {"", "NA", "-", "12.0", "12,00", " 12 ", "\"12\"", "007"})
        EXPECT_EQ(refusal(cell), "") << cell;
    EXPECT_EQ(read("taxon,10\nA,1.000\n").counts, std::vector<std::int32_t>{1}); // no comma can be meant
}

TEST(CountTable, whatIsNoTableOfCountsIsRefused)
{
    EXPECT_EQ(read("").refusal, "This is no table of counts: it has no rows and columns with names.");
    EXPECT_EQ(read("Pinus\nBetula\n").refusal, read("").refusal);
    EXPECT_EQ(read("sample,A,B\n1,2,3\n2,3\n").refusal, "Row 3 has 2 fields instead of 3.");
    EXPECT_EQ(read("sample,A\n1,2,3\n2,3,\n\"3").refusal, "Row 4 has a quotation mark that is never closed.");
    EXPECT_EQ(read("sample,A\n1,20000\n2,40000\n").refusal,
              "Sample \"2\" has 40000 individuals; a data sheet holds 32767 in a sample.");
    EXPECT_EQ(read(bytesOf(std::string(EXAMPLES) + "/khil_phytoliths.csv")).refusal,
              "This is a data sheet: File > Open reads it.");
    EXPECT_EQ(read("sample,depth\n1,2\n").refusal, "The table has no taxa.");
}

TEST(CountTable, moreThanASheetHoldsIsRefusedAndTheRarestTaxaCanBeLeftOut)
{
    std::string table = "sample";
    std::string counts;
    for (int taxon = 1; taxon <= 137; ++taxon) {
        table += ",T" + decimalText(taxon);
        counts += "," + decimalText(taxon == 5 || taxon == 9 || taxon == 40 ? 1 : 7);
    }
    table += "\n1" + counts + "\n";
    EXPECT_EQ(read(table).refusal, "The table has 137 taxa; a sheet holds 135.");
    EXPECT_EQ(read(table).surplusTaxa, 2);
    const CountTable cut = read(table, {std::nullopt, true});
    EXPECT_EQ(cut.refusal, "");
    EXPECT_EQ(cut.taxa.size(), 135U);
    EXPECT_EQ(cut.taxa[4], "T5"); // of equally rare ones the later go
    EXPECT_EQ(cut.counts.size(), 135U);
    EXPECT_EQ(remarks(cut), "Left out as the rarest taxa, with 2 individuals in all: T40, T9.\n");

    std::string samples = "sample,A,B\n";
    for (int sample = 1; sample <= 251; ++sample)
        samples += decimalText(sample) + ",1,2\n";
    EXPECT_EQ(read(samples).refusal, "The table has 251 samples; a sheet holds 250.");
}

TEST(CountTable, textsFitADataSheet)
{
    const CountTable table = read("sample,\"a \"\"b\"\"\nc\",\n1,2,3\n,4,5\n");
    EXPECT_EQ(told(table), "1 2: --- / a 'b' c --- : 2 3 4 5");
    EXPECT_EQ(decodeTable("a\xE9").text, "a\xE9");
    EXPECT_STREQ(decodeTable("a\xE9").encoding, "Windows-1252");
    EXPECT_EQ(decodeTable("\xEF\xBB\xBF"
                          "a\xC3\xA9?")
                  .text,
              "a\xE9?");
    EXPECT_EQ(decodeTable("\xD0\x91?").replaced, 1); // a Cyrillic letter
    EXPECT_EQ(decodeTable(std::string("\xFE\xFF\0a\x04\x11", 6)).text, "a?");
}
