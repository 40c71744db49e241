#pragma once

#include "core/measured_concentration.h"
#include "core/save_mode.h"

/// What a handler of a lower room sets off, or asks, in rooms that it does not include. app/wiring.cpp
/// connects them; what is not connected does nothing.
struct Hooks {
    bool (*ReadKeySettings)() = [] { return false; }; ///< false: missing or unreadable
    void (*ArrangeTaxonCells)() = [] {};
    void (*ShowInitial)() = [] {};        ///< brings up the window that identifies the keyboard
    void (*ShowFirstRunChoice)() = [] {}; ///< after a first run: begins the first sheet
    void (*SaveSheet)(SaveMode) = [](SaveMode) {};
    bool (*AutoBackup)() = [] { return true; }; ///< false: not written
    /// What becomes of the recovery copy. False if unsaved work could not be written.
    bool (*EndRecovery)(bool lossConfirmed) = [](bool) { return true; };
    void (*SheetOpened)() = [] {}; ///< a sheet was read from its file, to its end or not
    void (*SheetSaved)() = [] {};  ///< into its own file, perhaps under a new name
    void (*EndProgram)() = [] {};
    void (*DrawDiversity)() = [] {}; ///< the all total has changed
    void (*CloseDiagram)() = [] {};
    void (*ReloadDiagram)() = [] {};  ///< the sheet has got another sample, perhaps while the diagram is open
    void (*ReorderDiagram)() = [] {}; ///< its samples stand in another order
    void (*RefreshDiagram)() = [] {}; ///< after a key, while the diagram is open
    void (*RedrawDiagram)() = [] {};  ///< other counts or another % basis, while the diagram is open
    void (*SampleRenamed)() = [] {};  ///< the sample on show, while the diagram is open
    /// Of a sample of the sheet, for the figure.
    std::optional<MeasuredConcentration> (*ConcentrationOf)(int sample) =
        [](int) -> std::optional<MeasuredConcentration> { return {}; };
};

extern Hooks hooks;
