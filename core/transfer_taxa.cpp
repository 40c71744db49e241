#include "core/transfer_taxa.h"

#include "core/action_log.h"
#include "core/basis_members.h"
#include "core/editing.h"
#include "core/highlight.h"
#include "core/main_screen.h"
#include "core/messages.h"
#include "core/number_text.h"
#include "core/recount_totals.h"
#include "core/sheet_state.h"
#include "core/taxon_name.h"
#include "core/text_changes.h"
#include "platform/ports.h"

#include <utility>

static bool hasCounts(int slot)
{
    std::int64_t sum = 0;
    for (int sample = 0; sample <= sheet.SampleCount; ++sample)
        sum += sheet.Count(sample, slot);
    return sum != 0;
}

static bool isTaxon(int slot)
{
    return slot >= 1 && slot <= taxonSlots;
}

void openTargetMenu(int layer)
{
    frmMain.SSTab1 = layer;
    for (int key = 1; key <= keysPerLayer; ++key) {
        const int slot = layer * keysPerLayer + key;
        frmMain.mnuMoveTo[slot].caption = decimalText(slot) + ": " + frmMain.Text1[slot].text;
    }
}

void targetMenuClosed(int layer)
{
    for (int key = 1; key <= keysPerLayer; ++key) {
        const int slot = layer * keysPerLayer + key;
        frmMain.mnuMoveTo[slot].enabled = !hasCounts(slot);
    }
}

void mnuMoveTo_Click(int target)
{
    if (target != sheet.MoveSource && isTaxon(target) && hasCounts(target) && !mayLoseCounts())
        return;
    TransferTaxa(target);
}

void TransferTaxa(int target)
{
    const int source = sheet.MoveSource;
    if (!isTaxon(source) || !isTaxon(target) || source == target)
        return;
    const VisitInterrupted interrupted; // the move renames and recounts boxes, which is no edit of them
    for (int sample = 0; sample <= sheet.SampleCount; ++sample)
        sheet.Count(sample, target) = std::exchange(sheet.Count(sample, source), 0);
    // Row number and key index stay with the slot.
    TaxonFields& from = sheet.TaxonRecord[source];
    TaxonFields& to = sheet.TaxonRecord[target];
    to.Subtotal1 = std::exchange(from.Subtotal1, "0");
    to.Subtotal2 = std::exchange(from.Subtotal2, "0");
    to.Name = std::exchange(from.Name, noText);
    setText1(target, frmMain.Text1[source].text);
    setText2(target, frmMain.Text2[source].text);
    setText1(source, noText);
    setText2(source, "0");
    frmMain.Label1[source].bold = false;
    highlight(target, takenBackRow);
    logAction("(Move) " + frmMain.Text1[target].text + ": " + decimalText(source) + " to " +
              decimalText(target));
    RecountTotals(sheet.CurrentSample);
    underlineBasis();
    markEdited();
    sheet.SheetPristine = false;
    frmMain.mnuNew.enabled = true;
}
