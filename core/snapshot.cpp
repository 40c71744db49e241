#include "core/snapshot.h"

#include "core/basis_members.h"
#include "core/main_screen.h"
#include "core/number_text.h"
#include "core/recount_totals.h"
#include "core/sheet_state.h"
#include "core/show_sample.h"
#include "core/taxon_name.h"
#include "core/text_changes.h"

/// Runs `keep(table, saved)` for each table that a reset brings back.
template <class Keep>
static void forEachSavedTable(Keep keep)
{
    forEachSampleTable(sheet, [keep](auto& table, auto&... saved) { (keep(table, saved), ...); });
}

void TakeSnapshot()
{
    sheet.SavedTaxon = sheet.TaxonRecord;
    forEachSavedTable([](const auto& table, auto& saved) {
        saved = table;
        for (int sample = sheet.SampleCount + 1; sample < sampleColumns; ++sample)
            clearColumn(saved, sample);
    });
    for (int item = 1; item <= infoItems; ++item)
        sheet.SavedInfo(0, item) = frmMain.Label10[item].caption;
}

void RestoreSnapshot()
{
    const ShowingSample showing; // a sample that comes back to one individual is not begun anew
    forEachSavedTable([](auto& table, const auto& saved) { table = saved; });
    for (int slot = 1; slot <= taxonSlots; ++slot) {
        frmMain.Text2[slot].bold = frmMain.Text1[slot].bold = false;
        sheet.TaxonRecord[slot] = sheet.SavedTaxon[slot];
        setText2(slot, decimalText(sheet.SavedCount(sheet.CurrentSample, slot)));
        setText1(slot, sheet.SavedTaxon[slot].Name);
    }
    for (int item = 1; item <= infoItems; ++item) {
        const std::string& info = sheet.SavedInfo(sheet.CurrentSample, item);
        frmMain.Text5[item].text = info.empty() ? noText : info;
        frmMain.Label10[item].caption = sheet.SavedInfo(0, item);
    }
    RecountTotals(sheet.CurrentSample);
    underlineBasis();
}
