// Any bytes in place of a data sheet: what can be read of them can be written, and is read again as what was
// written.

#include "files/data_sheet_reader.h"
#include "files/sheet_text.h"
#include "platform/code_page.h"

#include <cstdint>
#include <cstdlib>
#include <optional>
#include <string>

namespace {

/// The sheet as a file of today; nothing if its sums fit into none.
std::optional<std::string> written(SheetTables& sheet)
{
    sheet.SheetHeader[1][2] = "Last modified (dd/mm/yyyy):";
    sheet.SheetHeader[1][4] = "Serial No.";
    fillEmptyCells(sheet, {});
    const auto totals = sampleTotals(sheet);
    return totals ? std::optional(dataSheetText(sheet, *totals)) : std::nullopt;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    // Making all tables costs many times what reading a file does; what it has filled is put back.
    static const SheetTables empty;
    static SheetTables sheet;
    static SheetTables again;
    sheet = empty;
    const std::string text = fileTextInCodePage({reinterpret_cast<const char*>(data), size});
    if (!readDataSheet(text, sheet))
        return 0;
    const auto once = written(sheet);
    if (!once)
        return 0;
    again = empty;
    if (!readDataSheet(*once, again) || written(again) != once)
        std::abort();
    return 0;
}
