#pragma once

/// The sheet as it was last saved, kept beside the live tables.

/// Keeps counts, taxon records, captions and cells of the additional info of samples 1 to SampleCount.
void TakeSnapshot();
/// Puts them back, on the screen and in the tables. The snapshot of a sheet that was never saved is an empty
/// one.
void RestoreSnapshot();
