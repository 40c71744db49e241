#pragma once

#include "core/action_record.h"
#include "core/box_visit.h"
#include "core/key_assignment.h"
#include "core/keyboard_state.h"
#include "core/saturation_curve.h"
#include "core/saved_tables.h"
#include "core/sheet_file.h"
#include "core/sheet_modes.h"
#include "core/sheet_tables.h"
#include "core/undo_stack.h"

/// Everything about the open sheet, the key settings, the log and the modes, a part for each subject. What
/// only computes takes the part that it needs. The member initialisers are the state of a program that has
/// just been started: an empty sheet with one sample.
struct SheetState : SheetTables,
                    SavedTables,
                    SheetFile,
                    TakeBack,
                    ActionRecord,
                    SaturationCurve,
                    KeyAssignment,
                    KeyboardState,
                    BoxVisit,
                    SheetModes {
    SheetState();

    ShareTable Share; ///< filled anew for each use
};

/// All that goes with a sample when it is moved, added, saved or reset: runs `visit(table)` for each table by
/// sample, `visit(table, saved)` for one that a reset brings back.
template <class Visit>
void forEachSampleTable(SheetState& state, Visit visit)
{
    visit(state.Count, state.SavedCount);
    visit(state.SampleField);
    visit(state.SampleNote);
    visit(state.SampleStamp);
    visit(state.AdditionalInfo, state.SavedInfo);
}
