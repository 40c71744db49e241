#pragma once

#include "core/sheet_tables.h"
#include "printing/page_set.h"

#include <array>
#include <string>
#include <utility>
#include <vector>

/// What the sheet does not tell by itself. Texts in the code page of the sheet, the title in UTF-8.
struct SheetWords {
    std::string title;
    std::array<std::string, 3> totals;                ///< captions of all total and the subtotals
    std::array<std::string, infoItems + 1> infoNames; ///< 1 to 6
    bool italics = true;                              ///< taxa other than families
};

/// The sheet on A4, lying: the used taxa against the samples, both in the order of the sheet, with the totals
/// below; as many pages as it takes, all taxa of some samples before the next samples. Notes and additional
/// info follow, where there are any.
std::vector<Page> sheetPages(const SheetTables& sheet, const SheetWords& words,
                             const LetterWidth& letterWidth);

/// The taxa of one sample on A4, standing: rank, name, count and share of all individuals, as `ranked` gives
/// their slots. `sample`: its column.
std::vector<Page> summaryPages(const SheetTables& sheet, int sample, const std::vector<int>& ranked,
                               const SheetWords& words, const LetterWidth& letterWidth);
