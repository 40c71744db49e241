#include "tables/taxon_list.h"

#include "core/number_text.h"
#include "tables/export_tables.h"
#include "tables/sheets_test.h"

namespace {

std::string told(const TaxonPlan& plan)
{
    std::string text;
    for (const TaxonPlan::Row& row : plan.rows) {
        text += decimalText(row.slot) + " " + row.name;
        for (int subtotal = 1; subtotal <= 2; ++subtotal)
            text += row.inSubtotal[subtotal] ? " +" + decimalText(subtotal) : "";
        text += "; ";
    }
    for (int subtotal = 1; subtotal <= 2; ++subtotal)
        if (!plan.subtotalNames[subtotal].empty())
            text += decimalText(subtotal) + "=" + plan.subtotalNames[subtotal] + "; ";
    for (const std::string& remark : plan.remarks)
        text += remark;
    return text;
}

std::string planned(const std::string& list, const SheetTables& sheet = {})
{
    return told(planTaxa(readTaxonList(list), sheet));
}

} // namespace

TEST(TaxonList, aNameALine)
{
    EXPECT_EQ(planned("Pinus\r\n\n  Betula, \"dwarf\" \r\"Alnus\"\n---\nPicea"),
              "1 Pinus; 2 Betula, 'dwarf'; 3 Alnus; 4 Picea; ");
    EXPECT_EQ(planned("Taxon\nPinus, undiff.\tTrees\n\tBetula\n"), "1 Pinus, undiff.; 2 Betula; ");
    EXPECT_EQ(planned(""), "");
}

TEST(TaxonList, freeRowsAreFilledInTheOrderOfTheKeys)
{
    SheetTables sheet;
    sheet.TaxonRecord[1].Name = "Pinus";
    sheet.SampleCount = 2;
    sheet.Count(2, 3) = 1; // a row without a name that was counted
    EXPECT_EQ(planned("Betula\nPinus\nAlnus\nBetula\n", sheet),
              "2 Betula; 4 Alnus; 1 name is on the sheet already and left alone: Pinus."
              "1 name stands in the list more than once: Betula.");
    for (int slot = 1; slot <= 133; ++slot)
        sheet.TaxonRecord[slot].Name = "T" + decimalText(slot);
    EXPECT_EQ(planned("A\nB\nC\nD\n", sheet), "134 A; 135 B; 2 taxa find no free row: C, D.");
    // Keys that are asked for, free or not, and one that there is not.
    EXPECT_EQ(planned("taxon,key_index\nA,7\nB,7\nC,200\nD,x\nE,2\n"), "1 B; 2 E; 3 C; 4 D; 7 A; ");
}

TEST(TaxonList, groupsGoIntoTheSubtotals)
{
    EXPECT_EQ(planned("Group;Taxon\nTrees;Pinus\nHerbs;Poaceae\nTrees;Alnus\n;Sphagnum\nAlgae;Pediastrum\n"),
              "1 Pinus +1; 2 Poaceae +2; 3 Alnus +1; 4 Sphagnum; 5 Pediastrum; 1=Trees; 2=Herbs; "
              "Group \"Algae\" is left out: the subtotals of the sheet are \"Trees\" and \"Herbs\".");
    EXPECT_EQ(planned("taxon\tsubtotal_1\tsubtotal_2\nPinus\tx\t\nPoaceae\t0\tYes\nBoth\t1\t1\n"),
              "1 Pinus +1; 2 Poaceae +2; 3 Both +1 +2; ");
    SheetTables sheet;
    sheet.SheetHeader[2][2] = "Herbs";
    sheet.TaxonRecord[135].Subtotal2 = "1"; // its taxa are not to be renamed
    EXPECT_EQ(
        planned("taxon,group\nPinus,Trees\nPoaceae,Herbs\n", sheet),
        "1 Pinus; 2 Poaceae +1; Group \"Trees\" is left out: the subtotals of the sheet are \"Herbs\" and "
        "\"Subtotal-2\".");
}

TEST(TaxonList, anExportedTableOfTaxaGivesTheSameRowsOnAnEmptySheet)
{
    const SheetTables sheet = exampleSheet("dallican_pollen");
    const TaxonPlan plan = planTaxa(readTaxonList(taxaTable(sheet)), SheetTables());
    ASSERT_EQ(plan.rows.size(), 50U);
    for (const TaxonPlan::Row& row : plan.rows) {
        const TaxonFields& fields = sheet.TaxonRecord[row.slot];
        EXPECT_EQ(row.name, fields.Name);
        EXPECT_EQ(row.inSubtotal[1], fields.Subtotal1 == "1");
        EXPECT_EQ(row.inSubtotal[2], fields.Subtotal2 == "1");
    }
    EXPECT_EQ(plan.subtotalNames[1], "Trees");
    EXPECT_EQ(plan.subtotalNames[2], "Herbs");
    EXPECT_TRUE(plan.remarks.empty());
}
