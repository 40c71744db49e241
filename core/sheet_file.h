#pragma once

#include "core/fingerprint.h"

#include <optional>
#include <string>

/// Where the sheet is kept, and how its last saving ended.
struct SheetFile {
    std::string SheetPath;                ///< UTF-8; shorter than 4 characters: no file yet
    std::optional<Fingerprint> KnownFile; ///< of the file at SheetPath as last read or written; none: no file
    std::string ProposedPath;             ///< UTF-8; name for the first save; empty: none
    bool SheetUnnamed = true;             ///< no dialog has named the sheet yet
    bool NotItsFile = false; ///< read in part, or from a template: not that file until it is saved
    int SaveResult = 0;      ///< 1: closing began, 2: the save did not complete
    int BackupSlot = 99;     ///< of the ring of backups, 0 to 9; 99: the master copy is still to come
};
