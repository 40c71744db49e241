#include "platform/key_codes.h"

#include "platform/key_position.h"

#include <bitset>

namespace keycodes {
namespace {

using Kind = PositionKind;

constexpr std::array<Position, 256> xPositions()
{
    std::array<Position, 256> keys{};
    setKeys(keys, 9, Kind::Fixed, {27, '1', '2', '3', '4', '5', '6', '7', '8', '9', '0'});
    setKeys(keys, 20, Kind::Punctuation, {189, 187});
    setKeys(keys, 22, Kind::Fixed, {8, 9}); // Backspace, Tab
    setLetters(keys, 24, "QWERTYUIOP");
    setKeys(keys, 34, Kind::Punctuation, {219, 221});
    setKeys(keys, 36, Kind::Fixed, {13, 17}); // Enter, left Ctrl
    setLetters(keys, 38, "ASDFGHJKL");
    setKeys(keys, 47, Kind::Punctuation, {186, 222, 192});
    setKeys(keys, 50, Kind::Fixed, {16}); // left Shift
    setKeys(keys, 51, Kind::Punctuation, {220});
    setLetters(keys, 52, "ZXCVBNM");
    setKeys(keys, 59, Kind::Punctuation, {188, 190, 191});
    setKeys(keys, 62, Kind::Fixed, {16, 106, 18, 32, 20}); // right Shift, keypad *, left Alt, Space, CapsLock
    setKeys(keys, 67, Kind::Fixed, {112, 113, 114, 115, 116, 117, 118, 119, 120, 121}); // F1 to F10
    setKeys(keys, 77, Kind::Fixed, {144, 145});                                         // NumLock, ScrollLock
    keys[79] = {Kind::Keypad, 103, 36};
    keys[80] = {Kind::Keypad, 104, 38};
    keys[81] = {Kind::Keypad, 105, 33};
    setKeys(keys, 82, Kind::Fixed, {109}); // keypad -
    keys[83] = {Kind::Keypad, 100, 37};
    keys[84] = {Kind::Keypad, 101, 12};
    keys[85] = {Kind::Keypad, 102, 39};
    setKeys(keys, 86, Kind::Fixed, {107}); // keypad +
    keys[87] = {Kind::Keypad, 97, 35};
    keys[88] = {Kind::Keypad, 98, 40};
    keys[89] = {Kind::Keypad, 99, 34};
    keys[90] = {Kind::Keypad, 96, 45};
    keys[91] = {Kind::Keypad, 110, 46};
    setKeys(keys, 94, Kind::Punctuation, {226});            // beside the left Shift
    setKeys(keys, 95, Kind::Fixed, {122, 123});             // F11, F12
    setKeys(keys, 97, Kind::Punctuation, {223});            // beside the right Shift, Brazil and Japan
    setKeys(keys, 104, Kind::Fixed, {13, 17, 111, 44, 18}); // keypad Enter, Ctrl, keypad /, Print, AltGr
    setKeys(keys, 110, Kind::Fixed, {36, 38, 33, 37, 39, 35, 40, 34, 45, 46}); // Home ... Insert, Delete
    setKeys(keys, 127, Kind::Fixed, {19});                                     // Pause
    setKeys(keys, 129, Kind::Fixed, {108});                                    // keypad separator
    setKeys(keys, 132, Kind::Punctuation, {225});                              // Yen
    setKeys(keys, 133, Kind::Fixed, {91, 92, 93});                             // left and right Super, Menu
    setKeys(keys, 191, Kind::Fixed, {124, 125, 126, 127, 128, 129});           // F13 to F18
    setKeys(keys, 197, Kind::Fixed, {130, 131, 132, 133, 134, 135});           // F19 to F24
    return keys;
}

constexpr std::array<Position, 256> positions = xPositions();

/// Code of the keys that people move about (Ctrl on CapsLock, Escape on CapsLock, Alt and Super exchanged).
/// Meta is left out: it is the Shift level of Alt on many layouts, and then must not differ from it.
int movedKeyCode(std::uint32_t keysym)
{
    switch (keysym) {
    case 0xffe1:
    case 0xffe2:
        return 16; // Shift_L, Shift_R
    case 0xffe3:
    case 0xffe4:
        return 17; // Control_L, Control_R
    case 0xffe9:
    case 0xffea:
    case 0xfe03:
        return 18; // Alt_L, Alt_R, ISO_Level3_Shift
    case 0xffe5:
        return 20; // Caps_Lock
    case 0xff1b:
        return 27; // Escape
    case 0xffeb:
        return 91; // Super_L
    case 0xffec:
        return 92; // Super_R
    default:
        return 0;
    }
}

/// Letters and signs that Latin layouts type on letter keys: the Latin sets 1 to 4, typographic quotes and
/// dashes, the dead accents, and Unicode up to where Greek begins.
bool isLatinKeysym(std::uint32_t keysym)
{
    return (keysym >= 0x20 && keysym < 0x400) || (keysym >= 0xaa0 && keysym < 0xb00) ||
           (keysym >= 0xfe50 && keysym < 0xfea0) || (keysym >= 0x1000100 && keysym < 0x1000370);
}

int codeFromKeysym(Position position, std::uint32_t keysym, bool latinLayout)
{
    if (const int moved = movedKeyCode(keysym))
        return moved;
    return latinLayout ? codeInLatinLayout(position, latinLetterCode(keysym)) : position.code;
}

int keypadCode(Position position, bool numLock)
{
    return numLock ? position.code : position.codeWithoutNumLock;
}

bool isLatinLayout(const BaseKeysyms& keysyms)
{
    std::bitset<128> letters;
    for (std::size_t keycode = 0; keycode < keysyms.size(); ++keycode) {
        const Kind kind = positions[keycode].kind;
        if (kind == Kind::Letter || kind == Kind::Punctuation)
            letters.set(static_cast<std::size_t>(latinLetterCode(keysyms[keycode])));
    }
    letters.reset(0); // the keys without a letter
    constexpr std::size_t fewestLatinLetters = 20;
    return letters.count() >= fewestLatinLetters;
}

/// Some layouts type one letter with two keys (x in Kurdish). The letter key has its code, the other key goes
/// without the letter, else their counts would run together.
void dropRepeatedLetters(BaseKeysyms& keysyms)
{
    std::bitset<128> taken;
    for (const Kind kind : {Kind::Letter, Kind::Punctuation}) {
        for (std::size_t keycode = 0; keycode < keysyms.size(); ++keycode) {
            const auto letter = static_cast<std::size_t>(latinLetterCode(keysyms[keycode]));
            if (letter == 0 || positions[keycode].kind != kind)
                continue;
            if (taken.test(letter))
                keysyms[keycode] = 0;
            taken.set(letter);
        }
    }
}

} // namespace

Layout::Layout(const BaseKeysyms& baseKeysyms)
{
    const bool latin = isLatinLayout(baseKeysyms);
    BaseKeysyms keysyms = baseKeysyms;
    dropRepeatedLetters(keysyms);
    for (std::size_t keycode = 0; keycode < codes.size(); ++keycode) {
        const int code = codeFromKeysym(positions[keycode], keysyms[keycode], latin);
        codes[keycode] = static_cast<std::uint8_t>(code);
    }
}

int Layout::virtualKey(std::uint32_t keycode, bool numLock) const
{
    if (keycode >= codes.size())
        return 0;
    const Position position = positions[keycode];
    return position.kind == Kind::Keypad ? keypadCode(position, numLock) : codes[keycode];
}

int virtualKeyFromEventAlone(std::uint32_t keycode, std::uint32_t keysym, bool numLock)
{
    const Position position = keycode < positions.size() ? positions[keycode] : Position{};
    return position.kind == Kind::Keypad ? keypadCode(position, numLock)
                                         : codeFromKeysym(position, keysym, isLatinKeysym(keysym));
}

} // namespace keycodes
