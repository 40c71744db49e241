#pragma once

#include <string>

/// What a person calls a key: its lower-case letter, digit or sign on a US keyboard, or its name in brackets
/// as in "[F1]" and "[BkSp]". `keyCode`: Windows virtual-key code; one without a name gives its number in
/// brackets.
std::string keyName(int keyCode);
