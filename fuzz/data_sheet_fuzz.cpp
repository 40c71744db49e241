// Any bytes in place of a data sheet: what can be read of them is read, and can be written again.

#include "files/data_sheet_reader.h"
#include "files/sheet_text.h"
#include "platform/code_page.h"

#include <cstdint>

static bool readWhole(DataSheetReader& reader, SheetTables& sheet)
{
    if (!reader.readPath() || !reader.readSerials() || !reader.readNames())
        return false;
    for (int row = 1; row <= taxonSlots; ++row)
        if (!reader.readTaxon(row))
            return false;
    if (reader.repeatedKeyIndex())
        return false;
    completeKeyIndexes(sheet);
    if (sheet.SampleCount == 0)
        reader.beginFromTemplate("1");
    return reader.readTexts();
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string text = fileTextInCodePage({reinterpret_cast<const char*>(data), size});
    SheetTables sheet;
    DataSheetReader reader(text, sheet);
    const bool whole = readWhole(reader, sheet);
    completeKeyIndexes(sheet); // as after a file that ended early
    if (whole) {
        fillEmptyCells(sheet, {});
        if (const auto totals = sampleTotals(sheet))
            dataSheetText(sheet, *totals);
        backupText(sheet);
    }
    return 0;
}
