#pragma once

/// "Export for R and Python": the sheet as tables for other programs. None of them is a save: the sheet keeps
/// its name and what is to be saved. A cancelled dialog ends without a word, a failure with a message, and
/// none is written over the sheet's own file.

void mnuExportCounts_Click();
void mnuExportTidy_Click();
void mnuExportTaxa_Click();
/// All three into a folder. Asks before it writes over any of them.
void mnuExportAll_Click();
