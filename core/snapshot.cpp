#include "core/snapshot.h"

#include "core/basis_members.h"
#include "core/main_screen.h"
#include "core/number_text.h"
#include "core/recount_totals.h"
#include "core/sheet_state.h"
#include "core/show_sample.h"
#include "core/text_changes.h"

void TakeSnapshot()
{
    for (int slot = 1; slot <= taxonSlots; ++slot) {
        sheet.SavedTaxon[slot] = sheet.TaxonRecord[slot];
        for (int sample = 1; sample < sampleColumns; ++sample) // columns beyond the sheet are empty
            sheet.SavedCount(sample, slot) = sample <= sheet.SampleCount ? sheet.Count(sample, slot) : 0;
    }
    for (int item = 1; item <= infoItems; ++item) {
        sheet.SavedInfo(0, item) = frmMain.Label10[item].caption;
        for (int sample = 1; sample <= sheet.SampleCount; ++sample)
            sheet.SavedInfo(sample, item) = sheet.AdditionalInfo(sample, item);
    }
}

void RestoreSnapshot()
{
    const ShowingSample showing; // a sample that comes back to one individual is not begun anew
    for (int slot = 1; slot <= taxonSlots; ++slot) {
        frmMain.Text2[slot].bold = frmMain.Text1[slot].bold = false;
        sheet.TaxonRecord[slot] = sheet.SavedTaxon[slot];
        for (int sample = 1; sample <= sheet.SampleCount; ++sample)
            sheet.Count(sample, slot) = sheet.SavedCount(sample, slot);
        setText2(slot, decimalText(sheet.SavedCount(sheet.CurrentSample, slot)));
        setText1(slot, sheet.SavedTaxon[slot].Name);
    }
    for (int item = 1; item <= infoItems; ++item) {
        const std::string& info = sheet.SavedInfo(sheet.CurrentSample, item);
        frmMain.Text5[item].text = info.empty() ? "---" : info;
        frmMain.Label10[item].caption = sheet.AdditionalInfo(0, item) = sheet.SavedInfo(0, item);
        for (int sample = 1; sample <= sheet.SampleCount; ++sample)
            sheet.AdditionalInfo(sample, item) = sheet.SavedInfo(sample, item);
    }
    RecountTotals(sheet.CurrentSample);
    underlineBasis();
}
