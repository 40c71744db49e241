#pragma once

#include "core/sheet_tables.h"

#include <string>
#include <vector>

/// A row of the sheet that has a name or counts, as the tables for other programs tell of it.
struct ExportedTaxon {
    int keyIndex = 0;  ///< 1 to 135, the row of the counts
    std::string name;  ///< no two are equal
    std::string group; ///< name of the first subtotal that the taxon is in, else empty
    long long total = 0;
    int samples = 0; ///< samples with a count other than 0
};

/// The used rows in the order of the sheet, in its code page. A row without a name is "Unnamed 17" by its key
/// index. A name that stands twice, or that is the head of a column of the tables, gets " (2)", or the next
/// number that no row is called by.
std::vector<ExportedTaxon> exportedTaxa(const SheetTables& sheet);
