#pragma once

#include "core/fingerprint.h"

#include <optional>
#include <string>

/// Replaces the sheet in memory by a file that the user chooses: a data sheet, an older layout of one, or a
/// template. Asks first if there is something to lose. A cancelled dialog and every failure to read end
/// without a message; what was read until then stays, and the sheet has the file's name already.
void mnuOpen_Click();
/// Replaces the sheet in memory by the text of a data sheet, in the code page. `path`: UTF-8, becomes the
/// sheet's file; `file`: what it holds. False if the sheet in memory stays as it was.
bool openSheetText(const std::string& text, const std::string& path, const std::optional<Fingerprint>& file);
/// The same for a file that was dropped onto the window, questions included. `path`: UTF-8.
void openDropped(const std::string& path);
/// Replaces the sheet in memory by one that is work to save. `text`: of a data sheet, in the code page;
/// `path`: the file in which it is to be saved, and `file` what that holds until then; without them it has no
/// name.
void openUnsavedText(const std::string& text, const std::string& path = {},
                     const std::optional<Fingerprint>& file = std::nullopt);
