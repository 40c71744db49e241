#pragma once

#include <string_view>

/// Putting another sample on show. The next count that goes into a sample other than the latest asks first.

/// A name was picked in the list of samples. Of samples with that name the last one is shown.
void Combo2_Click(std::string_view name);
/// "Go": the sample with the highest serial number.
void Command9_Click();
/// The user has typed in the list's own box, which only Modify template mode allows. The name comes back;
/// but the first change after a pick names the sample. `caret`: characters before the caret.
void Combo2_Change(std::string_view text, int caret);
