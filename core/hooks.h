#pragma once

#include "core/save_mode.h"

/// What a handler of the core sets off in rooms above it. app/wiring.cpp connects them; what is not connected
/// does nothing.
struct Hooks {
    bool (*ReadKeySettings)() = [] { return false; }; ///< false: missing or unreadable
    void (*ArrangeTaxonCells)() = [] {};
    void (*ShowInitial)() = [] {};        ///< brings up the window that identifies the keyboard
    void (*ShowFirstRunChoice)() = [] {}; ///< after a first run: begins the first sheet
    void (*SaveSheet)(SaveMode) = [](SaveMode) {};
    void (*AutoBackup)() = [] {};
    void (*EndRecovery)(bool lossConfirmed) = [](bool) {}; ///< what becomes of the recovery copy
    void (*EndProgram)() = [] {};
    void (*DrawDiversity)() = [] {}; ///< the all total has changed
    void (*CloseDiagram)() = [] {};
    void (*ReloadDiagram)() = [] {};  ///< the sheet has got another sample, perhaps while the diagram is open
    void (*ReorderDiagram)() = [] {}; ///< its samples stand in another order
    void (*RefreshDiagram)() = [] {}; ///< after a key, while the diagram is open
    void (*RedrawDiagram)() = [] {};  ///< other counts or another % basis, while the diagram is open
};

extern Hooks hooks;
