#pragma once

/// "Print": pages as a PDF file, from which every system prints. Nothing of that is a save of the sheet.

void mnuPrintSheet_Click();
/// The ranking of the sample on show.
void mnuPrintSummary_Click();
