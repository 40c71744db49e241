#include "core/recount_totals.h"

#include "core/main_screen.h"
#include "core/number_text.h"
#include "core/sheet_state.h"
#include "core/taxon_name.h"
#include "core/text_changes.h"

static bool isBlankName(std::string_view name)
{
    return name.size() <= 2 && (name.empty() || name == "-" || name == "--" || name == " " || name == "  ");
}

/// `flag`: of a subtotal. Nearly all are a single digit, and each key press reads 270.
static bool isMember(std::string_view flag)
{
    return flag.size() == 1 ? flag == "1" : leadingNumber(flag) == 1;
}

void RecountTotals(int sample)
{
    if (!sheet.KeysActive) // the boxes show percentages
        return;
    frmMain.hundredMark = {};
    std::int64_t all = 0;
    std::int64_t subtotal1 = 0;
    std::int64_t subtotal2 = 0;
    for (int slot = 1; slot <= taxonSlots; ++slot) {
        const TaxonFields& taxon = sheet.TaxonRecord[slot];
        const std::int32_t count = wholeNumber(frmMain.Text2[slot].text);
        if (isMember(taxon.Subtotal1))
            subtotal1 += count;
        if (isMember(taxon.Subtotal2))
            subtotal2 += count;
        all += count;

        frmMain.Text2[slot].bold = frmMain.Text1[slot].bold = sheet.Count(sample, slot) != 0;
        if (isBlankName(frmMain.Text1[slot].text))
            setText1(slot, noText);
    }
    sheet.SampleTotal = within32Bits(all);
    sheet.TaxonRecord[0].Subtotal1 = decimalText(within32Bits(subtotal1));
    sheet.TaxonRecord[0].Subtotal2 = decimalText(within32Bits(subtotal2));

    setText3(0, decimalText(sheet.SampleTotal));
    setText3(1, sheet.TaxonRecord[0].Subtotal1);
    setText3(2, sheet.TaxonRecord[0].Subtotal2);
}
