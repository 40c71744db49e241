#pragma once

#include "core/sheet_tables.h"

#include <cstdint>
#include <string>
#include <string_view>

/// The three tables that R, pandas and spreadsheets read without an option: UTF-8 with a byte order mark only
/// if a character beyond ASCII occurs, CR LF, commas, points, quotation marks where RFC 4180 needs them.
/// docs/data-formats.md tells them column by column. Counts and sums of any size are written.

/// One row a sample, one column a taxon; only taxa with a count somewhere.
std::string countsTable(const SheetTables& sheet);
/// One row a sample and taxon, zeros too. `location`: UTF-8, what the sheet is called.
std::string tidyTable(const SheetTables& sheet, std::string_view location);
/// One row a used row of the sheet, taxa that were never counted too.
std::string taxaTable(const SheetTables& sheet);

/// Appends 100 x `count` / `total` with ten significant digits, halves to even, in plain decimal writing.
/// `total`: above 0 and within 40 bits.
void appendPercent(std::string& text, std::int32_t count, std::int64_t total);
