#pragma once

#include "core/fingerprint.h"

#include <cstdint>
#include <optional>
#include <string>

/// What a recovery copy and its journal say of themselves.
struct RecoveryLabel {
    std::uint64_t number = 0;        ///< a copy and the journal that goes on from it have the same
    std::string path;                ///< of the sheet's file, UTF-8; empty: it has none
    std::optional<Fingerprint> file; ///< of that file as it was last read or written
    std::string lastCounted;         ///< date and time, as in "15/11/2026 (14:05:09)"; empty: nothing counted
    std::string shownSerial;         ///< serial number of the sample on show, of a copy only

    friend bool operator==(const RecoveryLabel&, const RecoveryLabel&) = default;
};
