#pragma once

/// What is asked and told in more than one place.

/// Asks whether counts may be lost. True for Yes.
[[nodiscard]] bool mayLoseCounts();
/// A file could not be written, for whatever reason.
void tellFileInUse();
