#pragma once

#include <optional>
#include <string>
#include <string_view>

/// The three keys that type a double quotation mark on one keyboard or another may type their plain character
/// only, because the files delimit texts with that mark and have no escape for it.

constexpr int noKeyYet = 9999; ///< LastKeyDown of a box in which no key has gone down

struct RefusedCharacter {
    std::string_view title; ///< of the message that tells of it
    std::string text;       ///< the text without the character
    int caret;              ///< characters before the caret in it
};

/// Looks at the character before the caret. One character goes; the text without it is not looked at again.
/// `lastKeyDown`: virtual-key code of the key that made the change. `caret`: 0 to the length of `text`.
std::optional<RefusedCharacter> refusedCharacter(std::string_view text, int caret, int lastKeyDown);
