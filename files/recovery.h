#pragma once

#include <string>

/// A copy of the open sheet, a data sheet itself, in the folder "References" while there is unsaved work:
/// what a crash or a power cut would take. It is written between two keys, at most five seconds after the
/// first change that is not in it, and removed when there is nothing left to lose. Each running program has a
/// copy of its own; one that no program holds any more was left by a crash.
struct RecoveryCopy {
    std::string path;     ///< UTF-8; empty: the folder cannot be written, there is no copy
    bool onDisk = false;  ///< the file is there
    bool waiting = false; ///< the timer runs
    std::string written;  ///< what is in it, so that nothing is written twice
};
extern RecoveryCopy recoveryCopy;

/// At the start: takes a place for this program's copy, and offers to take up one that a crash has left. One
/// that is declined goes to the backups, so it is not offered again and not lost either.
void findRecoveryCopies();
/// After an event of the user: sees to it that unsaved work is copied before long, and that nothing is kept
/// of work that is saved or given up.
void watchUnsavedWork();
/// The time has come, between two keys.
void RecoveryTimer_Timer();
/// A file of the sheet is about to be written over. Cut short by a crash, it would be neither the old one nor
/// the new one: until it is whole, all counts stand in the copy, those of the last seconds and the saved ones
/// too.
void copyBeforeOverwriting();
/// The program ends. `lossConfirmed`: what was not saved is given up.
void endRecovery(bool lossConfirmed);
