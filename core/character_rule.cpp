#include "core/character_rule.h"

std::optional<RefusedCharacter> refusedCharacter(std::string_view text, int caret, int lastKeyDown)
{
    struct Key {
        int code;
        char plain;
        std::string_view title;
    };
    constexpr Key keys[] = {{51, '3', "Are you an AZERTY keyboard user?"}, // " on French keyboards
                            {50, '2', "Caution!"},    // " with Shift on many European ones
                            {222, '\'', "Caution!"}}; // " with Shift on American ones
    if (caret < 1)
        return std::nullopt;
    const auto place = static_cast<std::size_t>(caret - 1);
    for (const Key& key : keys)
        if (lastKeyDown == key.code && text[place] != key.plain)
            return RefusedCharacter{key.title,
                                    std::string(text.substr(0, place)) + std::string(text.substr(place + 1)),
                                    caret - 1};
    return std::nullopt;
}
