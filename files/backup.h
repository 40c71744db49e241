#pragma once

/// Writes a copy of the sheet on show into "References/Back up files": the first one of a run to the master
/// file, those after it in turn to a ring of ten. No dialog and no word; a failure leaves what was there and
/// takes its turn all the same. False if it was not written.
bool AutoBackup();
