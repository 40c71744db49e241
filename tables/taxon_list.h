#pragma once

#include "core/sheet_tables.h"

#include <array>
#include <string>
#include <string_view>
#include <vector>

/// One taxon of a list. Texts are in the code page of the sheets, fit for one of their files.
struct ListedTaxon {
    std::string name;
    std::string group;                ///< empty: none
    int keyIndex = 0;                 ///< 1 to 135; 0: none is asked for
    std::array<bool, 3> inSubtotal{}; ///< 1, 2
};

/// Reads one name a line, or a table with a column "taxon" and any of "group", "key_index", "subtotal_1" and
/// "subtotal_2", such as the table of taxa that this program writes. `text`: in the code page.
std::vector<ListedTaxon> readTaxonList(std::string_view text);

/// What becomes of a list on a sheet.
struct TaxonPlan {
    struct Row {
        int slot = 0;
        std::string name;
        std::array<bool, 3> inSubtotal{}; ///< 1, 2
    };
    std::vector<Row> rows; ///< free rows that get a taxon
    std::array<std::string, 3>
        subtotalNames;                ///< 1, 2: the name that a subtotal gets; empty: it keeps its own
    std::vector<std::string> remarks; ///< what is left alone or out; whole sentences
};

/// A taxon goes to its key index if that row is free, and otherwise into the free rows from the first on, in
/// the order of the keys. Names that the sheet has already are left alone. A row is free if it has neither a
/// name nor counts in any sample. Groups become the subtotals that have their names, or that have still the
/// names of a new sheet.
TaxonPlan planTaxa(const std::vector<ListedTaxon>& list, const SheetTables& sheet);
