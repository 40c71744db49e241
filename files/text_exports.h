#pragma once

/// Files for other programs. The program never reads them back.

/// "Save history": the log of all actions since the start.
void mnuSaveHistory_Click();
/// "Save Saturation curve", and "Save data" of the curve: the live curve of the sample on show. A cancelled
/// dialog and a failure end it without a word.
void SaveDiversity();
void mnuSaveSaturation_Click();
