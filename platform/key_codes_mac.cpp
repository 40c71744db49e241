#include "platform/key_codes.h"

#include "platform/key_position.h"

namespace keycodes {
namespace {

using Kind = PositionKind;

constexpr std::array<Position, 127> macPositions()
{
    std::array<Position, 127> keys{};
    setLetters(keys, 0x00, "ASDFHGZXCV");
    setKeys(keys, 0x0a, Kind::Punctuation, {226}); // the additional key of European keyboards
    setLetters(keys, 0x0b, "BQWERYT");
    setKeys(keys, 0x12, Kind::Fixed, {'1', '2', '3', '4', '6', '5'});
    setKeys(keys, 0x18, Kind::Punctuation, {187});
    setKeys(keys, 0x19, Kind::Fixed, {'9', '7'});
    setKeys(keys, 0x1b, Kind::Punctuation, {189});
    setKeys(keys, 0x1c, Kind::Fixed, {'8', '0'});
    setKeys(keys, 0x1e, Kind::Punctuation, {221});
    setLetters(keys, 0x1f, "OU");
    setKeys(keys, 0x21, Kind::Punctuation, {219});
    setLetters(keys, 0x22, "IP");
    setKeys(keys, 0x24, Kind::Fixed, {13}); // Return
    setLetters(keys, 0x25, "LJ");
    setKeys(keys, 0x27, Kind::Punctuation, {222});
    setLetters(keys, 0x28, "K");
    setKeys(keys, 0x29, Kind::Punctuation, {186, 220, 188, 191});
    setLetters(keys, 0x2d, "NM");
    setKeys(keys, 0x2f, Kind::Punctuation, {190});
    setKeys(keys, 0x30, Kind::Fixed, {9, 32}); // Tab, Space
    setKeys(keys, 0x32, Kind::Punctuation, {192});
    setKeys(keys, 0x33, Kind::Fixed, {8});                          // Backspace
    setKeys(keys, 0x35, Kind::Fixed, {27, 91, 91, 16, 20, 18, 17}); // Escape, Command, Shift ... Control
    setKeys(keys, 0x3c, Kind::Fixed, {16, 18, 17});                 // right Shift, Option, Control
    setKeys(keys, 0x40, Kind::Fixed, {128, 110});                   // F17, keypad decimal
    setKeys(keys, 0x43, Kind::Fixed, {106});                        // keypad *
    setKeys(keys, 0x45, Kind::Fixed, {107});                        // keypad +
    setKeys(keys, 0x47, Kind::Fixed, {144});                        // keypad Clear, in the place of NumLock
    setKeys(keys, 0x4b, Kind::Fixed, {111, 13});                    // keypad /, Enter
    setKeys(keys, 0x4e, Kind::Fixed, {109, 129, 130});              // keypad -, F18, F19
    setKeys(keys, 0x52, Kind::Fixed, {96, 97, 98, 99, 100, 101, 102, 103}); // keypad 0 to 7
    setKeys(keys, 0x5a, Kind::Fixed, {131, 104, 105});                      // F20, keypad 8 and 9
    setKeys(keys, 0x5d, Kind::Punctuation, {225, 223}); // Yen and underscore of Japanese keyboards
    setKeys(keys, 0x5f, Kind::Fixed, {108});            // keypad separator
    setKeys(keys, 0x60, Kind::Fixed, {116, 117, 118, 114, 119, 120}); // F5, F6, F7, F3, F8, F9
    setKeys(keys, 0x67, Kind::Fixed, {122});                          // F11
    setKeys(keys, 0x69, Kind::Fixed, {124, 127, 125});                // F13, F16, F14
    setKeys(keys, 0x6d, Kind::Fixed, {121, 93, 123});                 // F10, Menu, F12
    setKeys(keys, 0x71, Kind::Fixed, {126, 45, 36, 33, 46});   // F15, Help/Insert, Home, Page Up, Delete
    setKeys(keys, 0x76, Kind::Fixed, {115, 35, 113, 34, 112}); // F4, End, F2, Page Down, F1
    setKeys(keys, 0x7b, Kind::Fixed, {37, 39, 40, 38});        // arrows
    return keys;
}

constexpr std::array<Position, 127> positions = macPositions();

} // namespace

int virtualKeyFromMac(std::uint32_t nativeVirtualKey, char32_t baseCharacter)
{
    if (nativeVirtualKey >= positions.size())
        return 0;
    const Position position = positions[nativeVirtualKey];
    constexpr char32_t endOfLatin = 0x370; // where Greek begins
    const bool latinLayout = baseCharacter >= U' ' && baseCharacter < endOfLatin;
    return latinLayout ? codeInLatinLayout(position, latinLetterCode(baseCharacter)) : position.code;
}

} // namespace keycodes
