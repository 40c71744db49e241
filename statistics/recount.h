#pragma once

/// A second count of a sample, made without looking at the first: until it is finished the window shows no
/// sum of it.
struct Recount {
    int hiddenSerial = 0; ///< serial number of the sample that is being counted again; 0: none
};
extern Recount recount;

/// The sample on show is being counted again.
bool areSumsHidden();
