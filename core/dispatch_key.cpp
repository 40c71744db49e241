#include "core/dispatch_key.h"

#include "core/built_in_keys.h"
#include "core/cue.h"
#include "core/hooks.h"
#include "core/hundred_mark.h"
#include "core/layer_keys.h"
#include "core/main_screen.h"
#include "core/number_text.h"
#include "core/offers.h"
#include "core/record_count.h"
#include "core/sheet_state.h"
#include "platform/ports.h"

namespace {

constexpr int repeatGuardMilliseconds = 70;

bool isSaveKey(int keyCode)
{
    return leadingNumber(sheet.KeySetting[rowSave].Code) == keyCode;
}

/// A counter key, layer key or Undo of the map in force.
bool isAccepted(int keyCode)
{
    if (!sheet.UseKeySettings)
        return builtInKeyNumber(keyCode) != 0 || keyCode == builtInShift1 || keyCode == builtInShift2 ||
               keyCode == builtInMinus;
    for (int row = 1; row <= rowUndo; ++row)
        if (leadingNumber(sheet.KeySetting[row].Code) == keyCode)
            return true;
    return false;
}

/// One before a full hundred the alarm is armed.
void armAlarm()
{
    for (int total = 0; total < 3; ++total) {
        const std::int64_t sum = wholeNumber(frmMain.Text3[total].text);
        if (frmMain.Option1[total].selected && sum != 0 && (sum + 1) % 100 == 0)
            sheet.AlarmArmed = true;
    }
}

void giveFeedback()
{
    armAlarm();
    const bool reached = markHundred();
    if (sheet.SoundOn) { // on purpose: with the sound off there is no alarm and no backup either
        if (reached && sheet.AlarmArmed) {
            playCue(Cue::SoundAlarm);
            sheet.AlarmArmed = false;
            hooks.AutoBackup();
        } else if (sheet.MinusArmed) {
            playCue(Cue::SoundUndo);
            sheet.AlarmArmed = true;
        } else {
            constexpr Cue cueOfLayer[] = {Cue::SoundKey1, Cue::SoundKey2, Cue::SoundKey3};
            playCue(cueOfLayer[sheet.Layer]);
        }
    }
    sheet.WarnNotLatest = false;
}

Answer askAboutStaleSample()
{
    if (sheet.SoundOn)
        playCue(Cue::SoundError);
    else
        beep();
    return ports.dialogs->ask(
        "The datasheet that you are trying to modify is not the latest one. Do you continue?", "Warning!!",
        Buttons::yesNo, Icon::question);
}

} // namespace

bool isBoundKey(int keyCode)
{
    return isAccepted(keyCode) || isSaveKey(keyCode);
}

void DispatchKey(int keyCode, int shift)
{
    layerKeyDown(keyCode);
    if (keyCode == sheet.LastKey && sheet.RepeatGuard)
        return;
    // Each key has its own 70 milliseconds.
    if (!isShiftKey(keyCode)) {
        sheet.LastKey = keyCode;
        sheet.RepeatGuard = true;
        ports.Timer1->start(repeatGuardMilliseconds);
    }
    // The Save key goes on: it may count something as well.
    if (isSaveKey(keyCode))
        hooks.SaveSheet(plainOrUntouched());
    if (!sheet.KeysActive || !isAccepted(keyCode))
        return;
    frmMain.hundredMark = {}; // it stands until the next key
    sheet.FreshSheet = false;
    frmMain.mnuNext.enabled = false;
    // Layer 0 turns no page here; letting go of the shift key does.
    if (!sheet.Modifying && sheet.Layer > 0)
        frmMain.SSTab1 = sheet.Layer;
    const bool counts = !isShiftKey(keyCode) && keyCode != sheet.MinusKey;
    if (counts && !sheet.Modifying) {
        offerReset(true);
        offerSave(true);
        frmMain.mnuSaveHistory.enabled = true;
    }
    sheet.MinusArmed = counts && sheet.MinusState > 0;
    if (sheet.MinusArmed)
        ++sheet.MinusState;
    bool answeredYes = false;
    if (keyCode == sheet.MinusKey || sheet.Modifying) {
        frmMain.Text99.text.clear();
    } else {
        // A shift key makes the sheet one to save too.
        sheet.SheetPristine = false;
        frmMain.mnuNew.enabled = frmMain.mnuUndo.enabled = true;
        if (leadingNumber(sheet.SampleField(sheet.CurrentSample, 1)) != sheet.SampleCount &&
            sheet.WarnNotLatest && !isShiftKey(keyCode)) {
            if (askAboutStaleSample() != Answer::yes)
                return; // nothing was counted, and the next key asks again
            answeredYes = true;
            sheet.WarnNotLatest = false;
        }
        RecordCount(keyCode, shift);
        if (!isShiftKey(keyCode))
            giveFeedback();
    }
    if (keyCode == sheet.MinusKey && sheet.MinusState == 0)
        sheet.MinusState = 1; // let go without a count between, it takes one back
    // The dialog took the key-ups of the shift keys.
    if (answeredYes) {
        releaseLayerKeys();
        frmMain.SSTab1 = 0;
    }
    // For Undo too, at its key-down, before anything is taken back.
    if (sheet.DiagramOpen && !isShiftKey(keyCode))
        hooks.RefreshDiagram();
}
