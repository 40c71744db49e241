#pragma once

#include "files/recorded_sheet.h"
#include "files/recovery_label.h"

#include <optional>
#include <string>

/// What a crash or a power cut would take of the open sheet is kept on disk, in the folder "References":
///
/// A copy of the sheet while there is unsaved work. It is written between two keys, at most five seconds
/// after the first change that is not in it, after an edit that is no count as soon as the hand pauses, and
/// removed when there is nothing left to lose.
///
/// A journal beside it, which takes each count as soon as it is painted, and reaches the disk itself when the
/// hand pauses for 100 milliseconds, after a second at the latest. It begins anew with each copy. Before
/// there is a copy it goes on from the sheet's own file, or from the empty sheet that the program begins
/// with.
///
/// Each running program has a place of its own for both; one that no program holds any more was left by a
/// crash.
struct RecoveryCopy {
    int place = 0;                         ///< 1 to 9; 0: none can be had
    RecoveryLabel label;                   ///< of the copy on disk, and of the journal
    bool onDisk = false;                   ///< the copy is there
    bool journalOnDisk = false;            ///< the journal may be there
    bool journalBegun = false;             ///< its head is that of `label`
    bool journalTorn = false;              ///< the last line may stand in part
    bool waiting = false;                  ///< the copy is due when the timer has run
    bool editWaiting = false;              ///< it is due when the hand pauses
    bool settling = false;                 ///< lines of the journal have not reached the disk yet
    bool held = false;                     ///< the sheet in memory is being replaced
    std::optional<RecordedSheet> recorded; ///< the sheet as it stands in its file or copy, and the journal
};
extern RecoveryCopy recoveryCopy;

std::string recoveryCopyPath(int place);
std::string recoveryJournalPath(int place);
constexpr int recoveryPlaces = 9; ///< programs that may run at once

/// Takes a free place, if the program has none.
bool takeRecoveryPlace();
/// The sheet on show was just read from what a crash has left at `place`, which is this program's now.
/// `journalGoesOn`: the journal that is there has the label.
void goOnFromCopy(int place, const RecoveryLabel& label, bool copyThere, bool journalThere,
                  bool journalGoesOn);

/// After an event of the user: sees to it that unsaved work is copied before long, and that nothing is kept
/// of work that is saved or given up.
void watchUnsavedWork();
/// The event is over and painted: what was counted goes into the journal.
void JournalTimer_Timer();
/// The hand has paused, or has not for a second.
void PauseTimer_Timer();
/// The time of the copy has come, between two keys.
void RecoveryTimer_Timer();
/// A file of the sheet is about to be written over. Cut short by a crash, it would be neither the old one nor
/// the new one: until it is whole, all counts stand in the copy, those of the last seconds and the saved ones
/// too.
void copyBeforeOverwriting();
/// The program ends. `lossConfirmed`: what was not saved is given up. False if there is unsaved work that
/// could not be written.
bool endRecovery(bool lossConfirmed);

/// The sheet on show as a data sheet.
std::string textOfUnsavedWork();

/// While one lives, nothing is written of the sheet in memory, and what was written stays: the sheet is being
/// replaced.
class RecoveryHeld {
public:
    RecoveryHeld() : before_(recoveryCopy.held) { recoveryCopy.held = true; }
    ~RecoveryHeld() { recoveryCopy.held = before_; }
    RecoveryHeld(const RecoveryHeld&) = delete;
    RecoveryHeld& operator=(const RecoveryHeld&) = delete;

private:
    bool before_;
};
