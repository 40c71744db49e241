#include "core/basis_members.h"

#include "core/main_screen.h"
#include "core/number_text.h"
#include "core/sheet_state.h"

void underlineBasis()
{
    for (int slot = 1; slot <= taxonSlots; ++slot) {
        const TaxonFields& taxon = sheet.TaxonRecord[slot];
        frmMain.Text1[slot].underline =
            (frmMain.Option1[1].selected && leadingNumber(taxon.Subtotal1) == 1) ||
            (frmMain.Option1[2].selected && leadingNumber(taxon.Subtotal2) == 1);
    }
}
