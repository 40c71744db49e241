#pragma once

#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <string_view>

namespace keycodes {

enum class PositionKind : std::uint8_t {
    NoKey,
    Fixed,       ///< same code on every layout
    Letter,      ///< has a letter on a US keyboard; the code follows the layout
    Punctuation, ///< may have a letter in other layouts
    Keypad       ///< digit or decimal, navigation without NumLock
};

/// A place on the keyboard and the code its key has on a US keyboard.
struct Position {
    PositionKind kind = PositionKind::NoKey;
    std::uint8_t code = 0;
    std::uint8_t codeWithoutNumLock = 0; ///< Keypad only
};

/// Sets neighbouring keys of a table of positions, from key number `first` on.
template <typename Table>
constexpr void setKeys(Table& table, std::size_t first, PositionKind kind, std::initializer_list<int> codes)
{
    for (const int code : codes)
        table[first++] = Position{kind, static_cast<std::uint8_t>(code)};
}

/// The same for letter keys; the code of a letter is its capital in ASCII.
template <typename Table>
constexpr void setLetters(Table& table, std::size_t first, std::string_view capitals)
{
    for (const char capital : capitals)
        setKeys(table, first++, PositionKind::Letter, {capital});
}

/// 65..90 for a-z and A-Z, else 0. Keysyms and Unicode agree here.
constexpr int latinLetterCode(std::uint32_t character)
{
    if (character >= 'a' && character <= 'z')
        return static_cast<int>(character - 'a') + 'A';
    if (character >= 'A' && character <= 'Z')
        return static_cast<int>(character);
    return 0;
}

/// Code of a key in a layout of Latin letters; `letterCode` is the letter it types, 0 if none.
constexpr int codeInLatinLayout(Position position, int letterCode)
{
    constexpr int firstCodeOfLetterless = 193;
    switch (position.kind) {
    case PositionKind::Letter:
        return letterCode != 0 ? letterCode : firstCodeOfLetterless + (position.code - 'A');
    case PositionKind::Punctuation:
        return letterCode != 0 ? letterCode : position.code;
    default:
        return position.code;
    }
}

} // namespace keycodes
