#pragma once

/// The one writer of data sheets.
/// `mode`: 0 plain save of a touched sheet, 99 plain save of an untouched one, 77 save as, 55 save a copy. A
/// sheet without a file, and one begun from a template, is saved as. The file is composed before it is
/// opened. A cancelled dialog and a failure set SaveResult to 2 and leave the sheet, its name and its marks
/// of unsaved work as they were; a failure is told.
void SaveSheet(int mode);

void mnuSave_Click();
void mnuSaveAs_Click();
void mnuSaveCopy_Click();
