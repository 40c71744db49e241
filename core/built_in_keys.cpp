#include "core/built_in_keys.h"

#include <array>

// By key number: three blocks of nine letters, then the block of function keys and digits above each.
constexpr std::array<unsigned char, 46> keyOfNumber = {
    0,                                           //
    'Q', 'W', 'E', 'A', 'S', 'D', 'Z', 'X', 'C', // 1 to 9
    'R', 'T', 'Y', 'F', 'G', 'H', 'V', 'B', 'N', // 10 to 18
    'U', 'I', 'O', 'J', 'K', 'L', 'M', 188, 190, // 19 to 27: the last two are comma and full stop
    112, 113, 114, '1', '2', '3', 115, 116, 117, // 28 to 36: F1 to F3, F4 to F6
    '4', '5', '6', 118, 119, 120, '7', '8', '9', // 37 to 45: F7 to F9
};

int builtInKeyCode(int keyNumber)
{
    return keyOfNumber[keyNumber];
}

int builtInKeyNumber(int keyCode)
{
    for (int number = 1; number <= 45; ++number)
        if (keyOfNumber[number] == keyCode)
            return number;
    return 0;
}
