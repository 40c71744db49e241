#pragma once

#include "platform/colour.h"

#include <cstdint>

/// Modes and marks: what the program is in the middle of.
struct SheetModes {
    std::int32_t SampleTotal = 0; ///< all total of the sample on show
    bool Modifying = false;       ///< "Modify template": keys edit and do not count
    bool UnsavedEdits = false; ///< something was edited or taken back; in that mode also work from before it
    bool SheetPristine = true; ///< no count and no edit since the last reset of the sheet
    bool FreshSheet = true;    ///< no accepted key yet: nothing is logged
    bool WarnNotLatest = true; ///< counting in another than the latest sample asks first
    bool AlarmArmed = true;    ///< the next hundred rings
    bool SoundOn = false;      ///< all eight cues could be read
    bool Unloading = false;    ///< the windows are being taken down
    bool SampleChangeFlag = false; ///< a sample was picked: what is typed next in the list names it
    bool SampleSwitching = false;  ///< a whole sample is being shown: change handlers store nothing
    int HighlightRow = 0;          ///< slot of the pale row, 0 for none
    int FoundSlot = 0;             ///< slot of the taxon that frmFind shows or showed last, 0 for none
    int MoveSource = 0;            ///< slot that a move would start from

    // The diagram.
    bool DiagramOpen = false;
    bool NamesNotNumeric = false; ///< at least one sample name is no plain number: no depth order
    int MoveFrom = 0;             ///< source and target column of a sample move
    int MoveTo = 0;
    int DiagramWidth = 0; ///< size of the diagram window to open with, twips; 0: its default
    int DiagramHeight = 0;
    Colour DiagramColour = RGB(0, 128, 0);
};
