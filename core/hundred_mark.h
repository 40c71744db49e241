#pragma once

/// Marks the watched total if it is a full hundred, the cue's visible twin. True if it is.
bool markHundred();
