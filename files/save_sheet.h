#pragma once

#include "core/save_mode.h"

/// The one writer of data sheets and percentage tables.
/// The basis of a table of percentages is to be selected first. A sheet without a file, and one begun from a
/// template, is saved as. The file is composed before it is
/// opened. A percentage table gives its name to a sheet that no dialog has named, and is no save of the
/// counts. A cancelled dialog and a failure set SaveResult to 2 and leave the sheet, its name and its marks
/// of unsaved work as they were; a failure is told.
void SaveSheet(SaveMode mode);

void mnuSave_Click();
void mnuSaveAs_Click();
void mnuSaveCopy_Click();

/// "Save percentage table": the chosen sum becomes the basis on the main window too.
void mnuPercentAll_Click();
void mnuPercentSub1_Click();
void mnuPercentSub2_Click();
