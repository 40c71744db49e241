#pragma once

#include "core/sheet_tables.h"
#include "files/recovery_label.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>

/// What a crash has left at one place, put together from copy and journal.
struct LeftWork {
    std::unique_ptr<SheetTables> tables; ///< the sheet with all its counts
    RecoveryLabel label;                 ///< of the copy, or of a journal without one; lastCounted of both
    std::int64_t individuals = 0;        ///< of all samples
    int sample = 0;                      ///< column that was being counted
    std::int64_t fromJournal = 0;        ///< individuals that were only in the journal
    bool journalGoesOn = false;          ///< the journal is that of the copy, or there is only the journal
    bool fileIsAnother = false;          ///< the sheet's file is gone or holds something else by now
};

/// `copy`, `journal`: the bytes of the files, if they are there. Nothing if what is there does not prove
/// itself, cannot be read to its end or is refused.
std::optional<LeftWork> understandLeftWork(const std::optional<std::string>& copy,
                                           const std::optional<std::string>& journal);

/// At the start: offers to take up what a crash has left, and takes a place for this program. What is
/// declined goes to the backups, so it is not offered again and not lost either; so does what is damaged, and
/// the user is told.
void findRecoveryCopies();
