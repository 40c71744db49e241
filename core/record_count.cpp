#include "core/record_count.h"

#include "core/action_log.h"
#include "core/built_in_keys.h"
#include "core/editing.h"
#include "core/highlight.h"
#include "core/layer_keys.h"
#include "core/main_screen.h"
#include "core/number_text.h"
#include "core/sheet_state.h"
#include "core/text_changes.h"

#include <algorithm>
#include <cstdlib>

/// At least two digits, since the carrier ignores a text of one.
static std::string slotText(int keyNumber)
{
    const std::string text = decimalText(keyNumber + keysPerLayer * sheet.Layer);
    return text.size() == 1 ? "0" + text : text;
}

/// Empty if the key counts no taxon. Of a code that stands in two rows the last row counts. A shift key never
/// counts: it repeats while it is held, and what it counted could not be taken back.
static std::string slotTextOfKey(int keyCode)
{
    if (!sheet.UseKeySettings) {
        sheet.Shift1Key = builtInShift1;
        sheet.Shift2Key = builtInShift2;
        sheet.MinusKey = builtInMinus;
        const int keyNumber = builtInKeyNumber(keyCode);
        return keyNumber == 0 ? "" : slotText(keyNumber);
    }
    std::string text;
    if (isShiftKey(keyCode))
        return text;
    for (int row = 1; row <= keysPerLayer; ++row)
        if (leadingNumber(sheet.KeySetting[row].Code) == keyCode)
            text = slotText(wholeNumber(sheet.TaxonRecord[row].KeyIndex));
    return text;
}

void RecordCount(int keyCode, int /*shift*/)
{
    // The write to the carrier changes the count before it returns.
    const std::string carried = slotTextOfKey(keyCode);
    setText0(carried);
    frmMain.Text99.text.clear();
    const int carriedSlot = std::abs(wholeNumber(carried));
    const int slot =
        carriedSlot <= taxonSlots ? carriedSlot : 0; // the carrier counts no slot beside the sheet
    if (sheet.UndoStack[0].slot != 0)
        frmMain.Text1[slot].backColor = frmMain.Text2[slot].backColor = plainRow;
    // A key without a slot is put on the stack too, as a stop for Undo.
    if (!isShiftKey(keyCode)) {
        std::move_backward(sheet.UndoStack.begin(), sheet.UndoStack.end() - 1, sheet.UndoStack.end());
        const int sign = sheet.MinusArmed ? -1 : 1;
        sheet.UndoStack[0] = {sheet.CurrentSample, sign * slot};
    }
    const int counted = std::abs(sheet.UndoStack[0].slot);
    if (counted == 0 || sheet.FreshSheet || isShiftKey(keyCode) || keyCode == sheet.MinusKey)
        return;
    touchSheet();
    logAction((sheet.MinusArmed ? "(Amend) " : "") + frmMain.Label1[counted].caption + ": " +
              frmMain.Text1[counted].text);
    frmMain.Text2[counted].bold = frmMain.Text1[counted].bold = true;
    highlight(counted, countedRow);
}
