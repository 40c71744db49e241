#pragma once

#include <string>

/// The % basis in force, which is also the sum that the alarm watches: 0 all total, 1 and 2 the subtotals.
int chosenBasis();
/// What a sum is called in the main window, as in "All total" or the user's "Trees".
std::string sumName(int total);
