#pragma once

#include "core/sheet_size.h"
#include "platform/controls.h"

#include <array>
#include <string>

/// Which key counts a cell, as the sheet shows it while counting where the key index stands in Modify
/// template mode.
struct KeyNames {
    KeyNames();

    MenuEntry mnuKeyNames; ///< checked while they are on show
    std::array<std::string, keysPerLayer + 1>
        ofNumber;     ///< by key number 1 to 45, as in "q" or "[F1]"; empty: no key counts it
    int revision = 0; ///< goes up whenever one of them changes
};
extern KeyNames keyNames;

/// What the user sees for a key of the map in force. `row`: of the key settings, 1 to 50.
std::string keyDefinition(int row);
/// The key whose press counts a key number; 0 if it has none, or one that counts another number or nothing.
int keyCodeOf(int keyNumber);

/// Takes the names anew from the map in force.
void nameKeys();

/// "q", "q with Shift-1" or "q with Shift-1 and Shift-2"; empty if no key counts the cell. `slot`: 1 to 135.
std::string keyOfCell(int slot);
/// What the tip of a cell says: its taxon, whole, and its key.
std::string tipOfCell(int slot);

void mnuKeyNames_Click();
