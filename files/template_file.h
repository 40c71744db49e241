#pragma once

/// Writes a template: the sheet's taxa, key indexes, subtotals and captions without its samples. The sheet in
/// memory, its name and its marks of unsaved work stay as they are, and nothing is logged. A cancelled dialog
/// and a failure end it without a message.
void mnuTemplate_Click();
