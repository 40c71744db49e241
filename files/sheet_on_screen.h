#pragma once

#include "core/sheet_size.h"
#include "platform/ports.h"

#include <array>
#include <string>

/// What the writers of sheets take from the screen and show on it.

/// The name of the sample on show and its counts go into the tables.
void storeShownSample();
/// Captions of additional info 1 to 6.
std::array<std::string, infoItems + 1> shownCaptions();
/// Line 1 of the next file: path (UTF-8), layout tag and the time of writing.
void stampHead(const char* tag, const std::string& path, const Moment& now);
/// The name of the sheet (UTF-8) in the title bar.
void showSheetName(const std::string& name);

/// The hourglass and a progress bar of `steps`, which runs on without an end if there are none to count.
void beginProgress(int steps = taxonSlots);
void endProgress();
