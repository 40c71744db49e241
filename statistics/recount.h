#pragma once

/// A second count of a sample, made without looking at the first: until it is finished the window shows no
/// sum of it.
struct Recount {
    int hiddenSerial = 0; ///< serial number of the sample that is being counted again; 0: none
};
extern Recount recount;

/// Whether a sample of the sheet is being counted again.
bool isHidden(int sample);
/// The sample on show is being counted again.
bool areSumsHidden();

/// The sample on show can be counted again: it has a name, and another sample may follow.
bool mayCountAgain();
/// "Count again": adds the sample "12.5 recount" as "Next sample" does, and goes there.
void countAgain();
/// "Finish recount": its sums show.
void finishRecount();
/// After an event of the user: ends the recount if its sample is gone with its sheet.
void watchRecount();
