#include "core/sheet_tables.h"

#include "core/number_text.h"
#include "core/taxon_name.h"

SheetTables::SheetTables()
{
    for (int slot = 0; slot <= taxonSlots; ++slot) {
        TaxonRecord[slot].RowNumber = TaxonRecord[slot].KeyIndex = decimalText(slot);
        KeyIndexOfRow[slot] = RowOfKeyIndex[slot] = slot;
    }
    SampleField(0, 1) = "0";
    SampleField(1, 1) = "1";
    SampleField(0, 2) = SampleField(1, 2) = "-9999";
    SampleNote(1, 0) = noText;
    for (int item = 1; item <= infoItems; ++item)
        AdditionalInfo(0, item) = "Additional info-" + decimalText(item) + ":";
    SheetHeader[1] = {"", "Untitled", "", "", "Serial No."};
    SheetHeader[2] = {"", "Key index", "Subtotal-1", "Subtotal-2", "Sample name"};
    NoteHeader = {"", noText, noText, noText, "Note: "};
}
