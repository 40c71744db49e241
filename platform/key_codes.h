#pragma once

#include <array>
#include <cstdint>

/// From the key events of each system to the one set of key numbers the program works with: the virtual-key
/// codes of Windows, 1..255. Every function here returns 0 for a key that has no code.
///
/// A count goes wrong when a key changes its code or when two keys share one. On Linux and macOS a code
/// therefore depends on the key and the layout, never on Shift, CapsLock or AltGr:
///  - the digit row is 49..57 and 48, and punctuation keys keep the code of their place, on every layout;
///  - a key that types a Latin letter has that letter's code, 65..90, wherever the layout puts it;
///  - a letter key that types none in a Latin layout (the comma of AZERTY) has a code of its own in 193..218,
///    which the other keys leave free: 193 + (letter printed there on a US keyboard - 'A');
///  - in a layout of another script the letter keys have the code of the letter on a US keyboard.
/// Two keys that only some keyboards have stay clear of that range: the one beside the right Shift (Brazil,
/// Japan) is 223, the Yen key 225.
namespace keycodes {

/// For each X keycode, the keysym of its key alone: no Shift, no CapsLock, no AltGr. 0 if it has none.
using BaseKeysyms = std::array<std::uint32_t, 256>;

/// One group of an X keyboard layout, reduced to the code of each key.
class Layout {
public:
    explicit Layout(const BaseKeysyms& baseKeysyms);

    /// `keycode` is that of the event, evdev scan code + 8.
    int virtualKey(std::uint32_t keycode, bool numLock) const;

private:
    std::array<std::uint8_t, 256> codes{};
};

/// NumLock in the native modifiers of an event, on X11 and on Wayland. The keysym does not tell: a held Shift
/// turns keypad digits into navigation keys, but on most keyboards not the other way round.
constexpr bool numLockIn(std::uint32_t nativeModifiers)
{
    constexpr std::uint32_t mod2 = 1U << 4;
    return (nativeModifiers & mod2) != 0;
}

/// For Wayland, where the toolkit does not show the layout and each event must stand for itself; `keysym` is
/// what the key types in the present state of the keyboard. The code is the same as on X11 except where that
/// does not tell enough:
///  - a letter key held together with AltGr;
///  - the dotless and dotted i of Turkish, which are different letters with Shift;
///  - a letter key that types an ASCII sign in a layout of another script (the Q of Greek), in some of them
///    (Arabic, Thai) only with Shift, so that there the code depends on Shift;
///  - a letter that the layout has on two keys: both have its code.
int virtualKeyFromEventAlone(std::uint32_t keycode, std::uint32_t keysym, bool numLock);

/// Windows: the codes as they are, without the difference of left and right Shift, Ctrl and Alt.
/// Tried under Wine alone. A keypad digit with Shift held arrives there as its navigation key.
int virtualKeyFromWindows(std::uint32_t nativeVirtualKey);

/// macOS: `nativeVirtualKey` is the key code of the event, 0..126, `baseCharacter` what the key types without
/// modifiers, 0 if nothing. The keypad has no NumLock there and always gives digits. Not yet tried on macOS.
int virtualKeyFromMac(std::uint32_t nativeVirtualKey, char32_t baseCharacter);

} // namespace keycodes
