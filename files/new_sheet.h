#pragma once

#include "files/sample_form.h"

/// " Create a new data file": asks for the first sample of a sheet, a new one or one that a template begins.
extern SampleForm frmSiteName;

/// Asks, puts an empty sheet in place of the open one and brings up frmSiteName.
void mnuNew_Click();
/// Brings up frmSiteName above the sheet in memory.
void showSiteName();
/// "OK": the first sample gets its name, note and info.
void frmSiteName_Command1_Click();
/// "Cancel": the sheet stands with its default sample.
void frmSiteName_Command3_Click();
/// A visit of the box of an additional info, 1 to 6.
void frmSiteName_Text3_GotFocus(int item);
void frmSiteName_Text3_LostFocus(int item);
