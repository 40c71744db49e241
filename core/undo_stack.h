#pragma once

#include <array>
#include <cstdint>

/// One count that can be taken back.
struct UndoEntry {
    int sample = 0; ///< column that was counted
    int slot = 0;   ///< positive: counted, negative: counted in reverse, 0: no count
};

/// What can be taken back.
struct TakeBack {
    std::array<UndoEntry, 1001> UndoStack{}; ///< newest first
};
