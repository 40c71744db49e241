#pragma once

#include "core/sheet_tables.h"
#include "files/sample_totals.h"

#include <string>
#include <vector>

/// The texts of the files that hold a sheet, in its code page. docs/data-formats.md tells them line by line.
/// They are composed whole before a file is touched. Empty cells are to be filled first.

std::string dataSheetText(const SheetTables& sheet, const std::vector<SampleTotals>& totals);
/// `basis`: the sum that the percentages go by, 0 all total, 1 and 2 the subtotals; `shares` are filled by
/// it. Notes are left out.
std::string percentageTableText(const SheetTables& sheet, const ShareTable& shares,
                                const std::vector<SampleTotals>& totals, int basis);
/// All fields are text, and the file ends with the notes.
std::string backupText(const SheetTables& sheet);
/// The sheet without its samples.
std::string templateText(const SheetTables& sheet);

/// Puts "---" into the empty cells and heads of the additional info, the notes and the dates, the captions
/// into the heads of the additional info and the names of the dates into theirs: no file has an empty text
/// there. `captions`: of additional info 1 to 6, as the screen shows them; one colon at the end is left out,
/// and an empty one becomes "Additional info-" and its number.
void fillEmptyCells(SheetTables& sheet, const std::array<std::string, infoItems + 1>& captions);
