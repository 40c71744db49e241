#pragma once

/// The key map that is in force while no key settings could be read.

constexpr int builtInShift1 = 16;
constexpr int builtInShift2 = 17;
constexpr int builtInMinus = 8;

/// Key number 1 to 45 of a Windows virtual-key code; 0 if it is no counter key.
int builtInKeyNumber(int keyCode);
/// Its inverse, for key numbers 1 to 45.
int builtInKeyCode(int keyNumber);
