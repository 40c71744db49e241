#pragma once

#include "core/sheet_state_type.h"
#include "files/sample_totals.h"

#include <string>
#include <vector>

/// The texts of the files that hold a sheet, in its code page. docs/data-formats.md tells them line by line.
/// They are composed whole before a file is touched. Empty cells are to be filled first.

std::string dataSheetText(const SheetState& sheet, const std::vector<SampleTotals>& totals);
/// `basis`: the sum that the percentages go by, 0 all total, 1 and 2 the subtotals. The table of shares is to
/// be filled by it first. Notes are left out.
std::string percentageTableText(const SheetState& sheet, const std::vector<SampleTotals>& totals, int basis);
/// All fields are text, and the file ends with the notes.
std::string backupText(const SheetState& sheet);
/// The sheet without its samples.
std::string templateText(const SheetState& sheet);

/// Puts "---" into the empty cells and heads of the additional info, the notes and the dates, the captions
/// into the heads of the additional info and the names of the dates into theirs: no file has an empty text
/// there. `captions`: of additional info 1 to 6, as the screen shows them; one colon at the end is left out,
/// and an empty one becomes "Additional info-" and its number.
void fillEmptyCells(SheetState& sheet, const std::array<std::string, infoItems + 1>& captions);
