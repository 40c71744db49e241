#pragma once

#include "platform/controls.h"

/// Samples of a sheet whose names are depths, put into the order of their depths: a sample that was named
/// wrongly and renamed comes to its place.
struct SampleSort {
    MenuEntry mnuSortSamples; ///< enabled as mnuEdit_Open() finds it
    Button offer; ///< the same above a diagram, on show where its rows and its samples do not agree
};
extern SampleSort sampleSort;

/// All names are depths, and they do not ascend.
bool canSortSamples();

/// The menu is about to be seen: the samples are looked at then, and at no key press.
void mnuEdit_Open();
/// Samples of equal depth keep their order.
void mnuSortSamples_Click();
