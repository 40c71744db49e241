#include "core/undo.h"

#include "core/action_log.h"
#include "core/cue.h"
#include "core/editing.h"
#include "core/highlight.h"
#include "core/hooks.h"
#include "core/hundred_mark.h"
#include "core/main_screen.h"
#include "core/number_text.h"
#include "core/offers.h"
#include "core/recount_totals.h"
#include "core/sheet_state.h"
#include "core/show_sample.h"
#include "core/text_changes.h"
#include "platform/ports.h"

#include <algorithm>
#include <cstdlib>

/// Looks at the totals before they are recomputed, so that a step back from 101 to 100 rings.
static bool touchesHundred()
{
    for (int total = 0; total < 3; ++total)
        if (frmMain.Option1[total].selected &&
            (std::int64_t{wholeNumber(frmMain.Text3[total].text)} - 1) % 100 == 0)
            return true;
    return false;
}

static void takeBack(UndoEntry entry)
{
    const int slot = std::abs(entry.slot);
    const int sign = entry.slot > 0 ? 1 : -1;
    if (entry.sample != sheet.CurrentSample) { // a count is taken back before the user's eyes
        showSample(entry.sample);
        logAction("(Change sample: " + frmMain.Combo2.text + ")");
    }
    setText2(slot, decimalText(within32Bits(std::int64_t{wholeNumber(frmMain.Text2[slot].text)} - sign)));
    sheet.Count(sheet.CurrentSample, slot) = wholeNumber(frmMain.Text2[slot].text);
    const bool rings = touchesHundred();
    playCue(rings ? Cue::SoundAlarm : Cue::SoundUndo);
    highlight(slot, takenBackRow);
    std::move(sheet.UndoStack.begin() + 1, sheet.UndoStack.end(), sheet.UndoStack.begin());
    sheet.UndoStack.back() = {};
    logAction((sign < 0 ? "(Undo-amend) " : "(Undo) ") + frmMain.Label1[slot].caption + ": " +
              frmMain.Text1[slot].text);
    offerSave(true); // taking back is work to save too
    markEdited();
}

void Undo()
{
    if (!sheet.KeysActive) // the boxes show percentages, which must not become counts
        return;
    // An entry without a slot is never taken off: what lies below it is out of reach.
    const bool takesBack = sheet.UndoStack[0].slot != 0;
    if (takesBack)
        takeBack(sheet.UndoStack[0]);
    RecountTotals(sheet.CurrentSample);
    if (takesBack)
        markHundred();
    if (sheet.UndoStack[0].slot == 0)
        frmMain.mnuUndo.enabled = false;
    sheet.AlarmArmed = true;
    if (sheet.DiagramOpen)
        hooks.RedrawDiagram();
}

void mnuUndo_Click()
{
    Undo();
    if (!sheet.Modifying)
        frmMain.focus = MainFocus::Text99;
}

void Amend()
{
}
