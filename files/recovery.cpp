#include "files/recovery.h"

#include "core/action_log.h"
#include "core/editing.h"
#include "core/main_screen.h"
#include "core/number_text.h"
#include "core/sheet_state.h"
#include "files/journal.h"
#include "files/recovery_copy.h"
#include "files/sample_totals.h"
#include "files/sheet_on_screen.h"
#include "files/sheet_text.h"
#include "platform/ports.h"

#include <algorithm>

RecoveryCopy recoveryCopy;

namespace {

// Milliseconds.
constexpr int copyDelay = 5000;
constexpr int pauseOfHand = 100;
constexpr int longestWithoutPause = 1000;

constexpr std::size_t mostLines = 500; ///< of one event; more is a matter for the copy

/// What the foot of the window says as long as unsaved work cannot be written.
void tell(bool kept)
{
    frmMain.diskNotice = kept ? ""
                              : "Counts that are not saved cannot be kept on disk: it is full, or the folder "
                                "\"References\" cannot be written. Save soon.";
}

bool isRecorded()
{
    return recoveryCopy.recorded && isSame(*recoveryCopy.recorded, sheet, sheet);
}

RecoveryLabel nextLabel()
{
    RecoveryLabel label = recoveryCopy.label;
    ++label.number;
    label.path = ownPath(sheet);
    label.file = label.path.empty() ? std::nullopt : sheet.KnownFile;
    label.shownSerial = sheet.SampleField(sheet.CurrentSample, 1);
    return label;
}

void removeJournal()
{
    recoveryCopy.journalBegun = recoveryCopy.settling = recoveryCopy.journalTorn = false;
    if (recoveryCopy.journalOnDisk)
        recoveryCopy.journalOnDisk = !ports.files->remove(recoveryJournalPath(recoveryCopy.place));
}

/// False if the counts are not all on disk.
bool writeCopy()
{
    recoveryCopy.editWaiting = false;
    if (!takeRecoveryPlace())
        return false;
    if (sheet.KeysActive)
        storeShownSample();
    if (recoveryCopy.onDisk && !recoveryCopy.journalBegun && isRecorded())
        return true;
    RecoveryLabel label = nextLabel();
    if (!recoveryCopy.recorded || !changedCounts(*recoveryCopy.recorded, sheet).empty())
        label.lastCounted = dateStamp(ports.clock->now());
    const bool written = ports.files->replace(recoveryCopyPath(recoveryCopy.place),
                                              recoveryCopyText(textOfUnsavedWork(), label));
    tell(written);
    if (!written)
        return false;
    recoveryCopy.label = label;
    recoveryCopy.onDisk = true;
    recoveryCopy.recorded = recordOf(sheet, sheet);
    removeJournal();
    return true;
}

/// The journal first: alone it would be taken for what goes on from the sheet's file.
void removeCopy()
{
    recoveryCopy.waiting = recoveryCopy.editWaiting = false;
    removeJournal();
    if (recoveryCopy.onDisk && !recoveryCopy.journalOnDisk)
        recoveryCopy.onDisk = !ports.files->remove(recoveryCopyPath(recoveryCopy.place));
}

/// What the lines of the journal go on from is on disk.
bool hasBase()
{
    if (recoveryCopy.onDisk || recoveryCopy.journalBegun)
        return true;
    return !isEdited(*recoveryCopy.recorded, sheet, sheet) &&
           (!ownPath(sheet).empty() || isEmptySheet(*recoveryCopy.recorded));
}

bool appendChanges(const std::vector<ChangedCount>& changes)
{
    if (!takeRecoveryPlace())
        return false;
    std::string text = recoveryCopy.journalTorn ? "\r\n" : "";
    if (!recoveryCopy.journalBegun) {
        if (!recoveryCopy.onDisk)
            recoveryCopy.label = nextLabel();
        text += journalText(JournalHead{recoveryCopy.label, recoveryCopy.onDisk});
    }
    const std::string now = dateStamp(ports.clock->now());
    for (const ChangedCount& change : changes)
        text += journalText({sheet.SampleField(change.sample, 1), sheet.SampleField(change.sample, 2),
                             change.slot, sheet.Count(change.sample, change.slot), now},
                            recoveryCopy.label.number);
    recoveryCopy.journalOnDisk = true;
    recoveryCopy.journalTorn = !ports.files->append(recoveryJournalPath(recoveryCopy.place), text);
    if (recoveryCopy.journalTorn)
        return false;
    recoveryCopy.journalBegun = true;
    recoveryCopy.label.lastCounted = now;
    for (const ChangedCount& change : changes)
        recoveryCopy.recorded->counts(change.sample, change.slot) = sheet.Count(change.sample, change.slot);
    if (!recoveryCopy.settling && !recoveryCopy.editWaiting)
        ports.deadlineTimer->start(longestWithoutPause);
    recoveryCopy.settling = true;
    return true;
}

} // namespace

std::string recoveryCopyPath(int place)
{
    return ports.programFolder + "/References/Recovery_copy_(" + decimalText(place) + ").csv";
}

std::string recoveryJournalPath(int place)
{
    return ports.programFolder + "/References/Recovery_journal_(" + decimalText(place) + ").txt";
}

bool takeRecoveryPlace()
{
    if (recoveryCopy.place != 0)
        return true;
    const std::vector<std::string> names = ports.files->list(ports.programFolder + "/References");
    const auto isThere = [&](const std::string& path) {
        return std::find(names.begin(), names.end(), path.substr(path.rfind('/') + 1)) != names.end();
    };
    for (int place = 1; place <= recoveryPlaces; ++place) {
        if (isThere(recoveryCopyPath(place)) || isThere(recoveryJournalPath(place)) ||
            !ports.files->claim(recoveryCopyPath(place)))
            continue; // another program's, or what a crash has left and nobody could move
        recoveryCopy.place = place;
        tell(true);
        return true;
    }
    tell(false);
    return false;
}

void goOnFromCopy(int place, const RecoveryLabel& label, bool copyThere, bool journalThere,
                  bool journalGoesOn)
{
    recoveryCopy.place = place;
    recoveryCopy.label = label;
    recoveryCopy.onDisk = copyThere;
    recoveryCopy.journalOnDisk = recoveryCopy.journalTorn = journalThere;
    recoveryCopy.journalBegun = journalGoesOn;
    recoveryCopy.recorded = recordOf(sheet, sheet);
}

void watchUnsavedWork()
{
    if (!hasUnsavedWork() && !recoveryCopy.held) {
        removeCopy();
        if (recoveryCopy.place != 0)
            tell(true);
    }
    ports.journalTimer->start(0);
    if (hasUnsavedWork() && !recoveryCopy.waiting) {
        recoveryCopy.waiting = true;
        ports.recoveryTimer->start(copyDelay);
    }
}

void JournalTimer_Timer()
{
    if (recoveryCopy.held)
        return;
    if (!hasUnsavedWork()) {
        if (!isRecorded())
            recoveryCopy.recorded = recordOf(sheet, sheet);
        return;
    }
    if (!recoveryCopy.recorded) { // nothing to go on from
        writeCopy();
        return;
    }
    const std::vector<ChangedCount> changes = changedCounts(*recoveryCopy.recorded, sheet);
    const bool based = hasBase();
    if (!changes.empty() && changes.size() <= mostLines)
        tell(appendChanges(changes));
    if (!based || isEdited(*recoveryCopy.recorded, sheet, sheet) || changes.size() > mostLines) {
        if (!recoveryCopy.editWaiting && !recoveryCopy.settling)
            ports.deadlineTimer->start(longestWithoutPause);
        recoveryCopy.editWaiting = true;
    }
    if (recoveryCopy.settling || recoveryCopy.editWaiting)
        ports.pauseTimer->start(pauseOfHand);
}

void PauseTimer_Timer()
{
    ports.pauseTimer->stop();
    ports.deadlineTimer->stop();
    if (recoveryCopy.held)
        return;
    if (recoveryCopy.editWaiting && hasUnsavedWork())
        writeCopy();
    if (recoveryCopy.settling)
        ports.files->settle(recoveryJournalPath(recoveryCopy.place));
    recoveryCopy.settling = false;
}

void RecoveryTimer_Timer()
{
    recoveryCopy.waiting = false;
    if (!recoveryCopy.held && hasUnsavedWork() && writeCopy())
        return;
    if (hasUnsavedWork()) { // a disk that is full now may have room again before the next key
        recoveryCopy.waiting = true;
        ports.recoveryTimer->start(copyDelay);
    }
}

void copyBeforeOverwriting()
{
    writeCopy();
}

bool endRecovery(bool lossConfirmed)
{
    ports.recoveryTimer->stop();
    ports.journalTimer->stop();
    ports.pauseTimer->stop();
    ports.deadlineTimer->stop();
    recoveryCopy.waiting = false; // if the program stays open after all, the next event waits anew
    if (lossConfirmed)
        removeCopy();
    return lossConfirmed || recoveryCopy.held || !hasUnsavedWork() || writeCopy();
}

std::string textOfUnsavedWork()
{
    if (sheet.KeysActive)
        storeShownSample();
    stampHead("Last modified (dd/mm/yyyy):", ownPath(sheet), ports.clock->now());
    fillEmptyCells(sheet, shownCaptions());
    const auto totals = sampleTotals(sheet);
    // Sums are never read back, and no sum keeps a copy from being written.
    return dataSheetText(
        sheet, totals.value_or(std::vector<SampleTotals>(static_cast<std::size_t>(sheet.SampleCount) + 1)));
}
