#pragma once

#include "core/sheet_state_type.h"

#include <string>
#include <vector>

/// A key that went down or came up in the diagnose window.
struct SeenKey {
    std::string time; ///< as in "14:05:09:27", to a hundredth of a second
    bool isDown = true;
    int code = 0;             ///< Windows virtual-key code; 0: the program has none for this key
    unsigned physicalKey = 0; ///< the system's own number of the key, told where there is no code
    int layer = 0;            ///< after it
    bool operator==(const SeenKey&) const = default;
};

/// What only the computer can tell. UTF-8.
struct SystemFacts {
    std::string date;          ///< of the report
    std::string programFolder; ///< holds "References" and "Sound files"
    std::string soundDevice;
    std::string qt, sdl, system, screen;
};

/// Which row or rows of the key map in force a key stands in, as in "row 1 (key number 1)"; "none".
std::string rowsOfKey(const SheetState& sheet, int keyCode);

/// What the key does while counting, on the layer of the moment, as in "counts 47: Abies". UTF-8.
std::string effectOfKey(const SheetState& sheet, int keyCode);

/// All that somebody who helps with a keyboard asks for, in lines. UTF-8. `keys`: oldest first.
std::string diagnoseReport(const SheetState& sheet, const std::vector<SeenKey>& keys,
                           const SystemFacts& facts);
