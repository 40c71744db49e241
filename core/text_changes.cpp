#include "core/text_changes.h"

#include "core/action_log.h"
#include "core/cue.h"
#include "core/hooks.h"
#include "core/main_screen.h"
#include "core/number_text.h"
#include "core/offers.h"
#include "core/recount_totals.h"
#include "core/sheet_state.h"
#include "platform/ports.h"

#include <cstdlib>

void setText0(std::string_view text)
{
    if (frmMain.Text0.text == text)
        return;
    frmMain.Text0.text = text;
    Text0_Change();
}

void setText1(int slot, std::string_view text)
{
    if (frmMain.Text1[slot].text == text)
        return;
    frmMain.Text1[slot].text = text;
    Text1_Change(slot);
}

void setText2(int slot, std::string_view text)
{
    if (frmMain.Text2[slot].text == text)
        return;
    frmMain.Text2[slot].text = text;
    Text2_Change(slot);
}

void setText3(int total, std::string_view text)
{
    if (frmMain.Text3[total].text == text)
        return;
    frmMain.Text3[total].text = text;
    Text3_Change(total);
}

void setLabel4(std::string_view caption)
{
    if (frmMain.Label4.caption == caption)
        return;
    frmMain.Label4.caption = caption;
    Label4_Change();
}

void showSerial(int sample)
{
    setLabel4(sheet.SampleField(sample, 1) + "/" + decimalText(sheet.LatestSerial));
}

void Text0_Change()
{
    // Never a slot: single digits come as "01" to "09". Emptying the carrier runs this handler once more; a
    // second recount of the same boxes would find the same.
    if (frmMain.Text0.text.size() <= 1)
        return;
    sheet.SampleTotal = 0;
    const int delta = sheet.MinusArmed ? -1 : 1;
    const int slot = std::abs(wholeNumber(frmMain.Text0.text));
    if (slot >= 1 && slot <= taxonSlots)
        setText2(slot,
                 decimalText(within32Bits(std::int64_t{wholeNumber(frmMain.Text2[slot].text)} + delta)));
    RecountTotals(sheet.CurrentSample);
    setText0("");
    setText3(0, decimalText(sheet.SampleTotal));
    for (int i = 1; i <= taxonSlots; ++i)
        sheet.Count(sheet.CurrentSample, i) = wholeNumber(frmMain.Text2[i].text);
}

void Text1_Change(int slot)
{
    sheet.TaxonRecord[slot].Name = frmMain.Text1[slot].text;
    if (slot != 0)
        return;
    frmMain.Combo2.text = frmMain.Text1[0].text;
    showSerial(sheet.CurrentSample);
    if (!sheet.Modifying)
        return;
    sheet.SampleField(sheet.CurrentSample, 2) = frmMain.Text1[0].text;
    if (sheet.DiagramOpen)
        hooks.SampleRenamed();
}

static void refuseCount(int slot)
{
    playCue(Cue::SoundError);
    ports.dialogs->ask("Please input digit(s).", "Error", Buttons::ok, Icon::exclamation);
    setText2(slot, decimalText(within32Bits(static_cast<std::int64_t>(sheet.PreviousCount))));
}

void Text2_Change(int slot)
{
    if (sheet.SampleSwitching || !sheet.KeysActive)
        return;
    sheet.Count(sheet.CurrentSample, slot) = wholeNumber(frmMain.Text2[slot].text);
    if (!isWholeNumber(frmMain.Text2[slot].text)) {
        refuseCount(slot);
        return;
    }
    if (sheet.Modifying) {
        sheet.FreshSheet = false;
        RecountTotals(sheet.CurrentSample);
    }
}

void Text3_Change(int total)
{
    if (total != 0 || !sheet.KeysActive)
        return;
    hooks.DrawDiversity();
    const std::int32_t all = wholeNumber(frmMain.Text3[0].text);
    if (all != 0 && !sheet.Modifying) // no next sample while this one is edited
        offerNextSample(true);
    // A sample that is only shown or corrected began earlier.
    if (all == 1 && !sheet.SampleSwitching && !sheet.Modifying)
        frmMain.Label14[1].caption = sheet.SampleStamp(sheet.CurrentSample, 2) =
            dateStamp(ports.clock->now());
}

void Label4_Change()
{
    if (sheet.SampleCount > 1)
        frmMain.mnuDiagramStyles.enabled = true;
}
