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

/// Making all tables of a sheet costs a hundred times what reading one does, so they are made once, and what
/// a file may have filled is put back.
class ReusedTables {
public:
    SheetState& fresh()
    {
        static const SheetState begun;
        used_.Count = begun.Count;
        used_.SampleField = begun.SampleField;
        used_.SampleNote = begun.SampleNote;
        used_.SampleStamp = begun.SampleStamp;
        used_.AdditionalInfo = begun.AdditionalInfo;
        used_.TaxonRecord = begun.TaxonRecord;
        used_.KeyIndexOfRow = begun.KeyIndexOfRow;
        used_.RowOfKeyIndex = begun.RowOfKeyIndex;
        used_.SheetHeader = begun.SheetHeader;
        used_.NoteHeader = begun.NoteHeader;
        used_.AdditionalHeader = begun.AdditionalHeader;
        used_.DateHeader = begun.DateHeader;
        used_.FileGeneration = begun.FileGeneration;
        used_.TemplateOpened = begun.TemplateOpened;
        used_.SampleSerial = begun.SampleSerial;
        used_.SerialSample = begun.SerialSample;
        used_.SampleCount = begun.SampleCount;
        used_.CurrentSample = begun.CurrentSample;
        used_.LatestSerial = begun.LatestSerial;
        return used_;
    }

private:
    SheetState used_;
};

/// The sheet as a file of today; nothing if its sums fit into none.
std::optional<std::string> written(SheetState& sheet)
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
    static ReusedTables first;
    static ReusedTables second;
    const std::string text = fileTextInCodePage({reinterpret_cast<const char*>(data), size});
    SheetState& sheet = first.fresh();
    if (!readDataSheet(text, sheet))
        return 0;
    const auto once = written(sheet);
    if (!once)
        return 0;
    SheetState& again = second.fresh();
    if (!readDataSheet(*once, again) || written(again) != once)
        std::abort();
    return 0;
}
