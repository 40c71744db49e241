#pragma once

#include "files/recovery_label.h"

#include <optional>
#include <string>
#include <string_view>

/// The text of a recovery copy: a data sheet with one line more, which proves the whole text and tells what
/// it is a copy of. A reader of data sheets stops before that line. docs/data-formats.md

std::string recoveryCopyText(std::string_view sheetText, const RecoveryLabel& label);

struct ProvedCopy {
    std::string_view sheetText; ///< of the text that was read; in the code page
    RecoveryLabel label;
};
/// Nothing if the text is not whole.
std::optional<ProvedCopy> readRecoveryCopy(std::string_view text);
