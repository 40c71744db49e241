#pragma once

/// An empty sheet with one sample in place of the open one: all tables, the snapshot, what can be taken back,
/// the marks on the rows, labels and the alarm basis take their defaults. What belongs to the run of the
/// program stays: key settings, cues, check marks of the menus, looks of the names, the backups' turn and the
/// log of all actions.
void resetSheet();
